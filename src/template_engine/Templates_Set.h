// The parsed templates of the shop: the frame of all pages, and the pages, read from the templates folder at start and
// one at a time after an edit. MainForm owns the one set; page code takes templates out of it by page name and
// makes its Variables on the set's table of names.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/KeyedCollection.h"
#include "base/LoadLog.h"
#include "base/TextFile.h"
#include "template_engine/NameTable.h"
#include "template_engine/Template.h"

#include <QByteArray>
#include <QHash>
#include <QString>
#include <QStringList>

#include <memory>

// The base names of the files to read. A page's is its key, too.
struct TemplateNames
{
    QString frame;
    QStringList pages; // in the order of reading: one that fails keeps those behind it from being read
};

class Templates_Set
{
public:
    // Path becomes the templates folder of the shop.
    Templates_Set(const ApplicationFolder& folder, LoadLog& log, TemplateNames templateNames);
    Templates_Set(const Templates_Set&) = delete;
    Templates_Set& operator=(const Templates_Set&) = delete;

    // Of all templates here and of all Variables for them. Ahead of the templates, which refer to it.
    NameTable names;

    // The folder of the templates, with its trailing separator.
    QString Path;
    // By page name: "main", "category" and so on. A page is absent when its file is missing or is no template.
    KeyedCollection<std::shared_ptr<Template>> templates;
    // The frame; nullptr until its file has been read.
    std::shared_ptr<Template> layout_template;

    // Reads the frame and all pages. A failure ends the reading silently: what was read so far stays, the others are
    // absent.
    void parseTemplates();

    // Reads one page again: the base name of its file, and its key in templates. A key that is not there yet is added.
    // Errors as for readTextFile and Template::Parse, and the page is absent then.
    void ReLoad(const QString& file, const QString& key);

    // Reads every page that is absent once more, each by itself: one that fails stays absent and keeps no other from
    // being read.
    void reloadAbsent();

    // The text of a page's file as a template holds it, read anew and not parsed. Errors as for readTextFile.
    QString textOfFile(const QString& file);

    // The encoding that the file of that base name had when it was last read, so that an editor can write it back
    // alike; UTF-8 when it was never read.
    TextEncoding encodingOf(const QString& file) const;

    // Whether the file of that base name has other bytes now than when it was last read, so that another program
    // changed it. A file that cannot be read now, or is gone, is not changed.
    bool isChangedOutside(const QString& file) const;

private:
    // What was found in a file when it was last read.
    struct FileState
    {
        TextEncoding encoding = TextEncoding::Utf8;
        QByteArray digest; // empty when it was never read
    };

    void loadAll();
    void load_template(const QString& file, const QString& key);
    QString pathOf(const QString& file) const;

    LoadLog& m_log;
    TemplateNames m_templateNames;
    QHash<QString, FileState> m_files; // by base name
};

// The text of a template file as the templates hold it: a line ends at CR LF or at a lone CR, a lone LF ends none, and
// every line, the last one too, is followed by one CR.
QString linesEndedByCr(const QString& text);
