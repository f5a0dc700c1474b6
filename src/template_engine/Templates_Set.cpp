#include "template_engine/Templates_Set.h"

#include "base/Circumstances.h"
#include "base/FileBytes.h"
#include "template_engine/TemplateParser.h"

#include <QCryptographicHash>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// Parses a template. A mistake is told with its line, 1-based.
void parse(Template& page, const QString& file)
{
    try {
        page.Parse();
    } catch (TemplateError& error) {
        const QStringView ahead = QStringView(page.template_text).first(error.position());
        const auto line = ahead.count(u'\r') + ahead.count(u'\n') + 1; // the two never end one line together here
        error.addCircumstance(u"Line %1 of the template \"%2.html\" is not understood."_s.arg(line).arg(file));
        throw;
    }
}

QByteArray digestOf(const QByteArray& bytes)
{
    return QCryptographicHash::hash(bytes, QCryptographicHash::Sha256);
}

} // namespace

QString linesEndedByCr(const QString& text)
{
    QString lines = text;
    lines.replace(u"\r\n"_s, u"\r"_s);
    // An end of line at the very end starts no further line.
    if (!lines.isEmpty() && !lines.endsWith(u'\r')) {
        lines.append(u'\r');
    }
    return lines;
}

Templates_Set::Templates_Set(const ApplicationFolder& folder, LoadLog& log, TemplateNames templateNames)
    : Path(folder.templatesFolder()), m_log(log), m_templateNames(std::move(templateNames))
{
}

void Templates_Set::parseTemplates()
{
    try {
        loadAll();
    } catch (const RuntimeError&) {
        // Deliberately silent: there is no message and no line in the log. The pages that are absent fail when shown.
    }
}

void Templates_Set::loadAll()
{
    m_log.WriteLoadLog(u"Start parseTemplates"_s);
    const QString layoutText = textOfFile(m_templateNames.frame);
    layout_template = std::make_shared<Template>(names);
    layout_template->template_text = layoutText;
    parse(*layout_template, m_templateNames.frame);
    templates.Clear();
    for (const QString& page : std::as_const(m_templateNames.pages)) {
        load_template(page, page);
    }
    m_log.WriteLoadLog(u"End parseTemplates"_s);
}

void Templates_Set::ReLoad(const QString& file, const QString& key)
{
    if (templates.hasKey(key)) {
        templates.Remove(key);
    }
    load_template(file, key);
}

void Templates_Set::reloadAbsent()
{
    for (const QString& page : std::as_const(m_templateNames.pages)) {
        if (templates.hasKey(page)) {
            continue;
        }
        try {
            load_template(page, page);
        } catch (const RuntimeError&) {
            // It stays absent; whoever needs it says so.
        }
    }
}

void Templates_Set::load_template(const QString& file, const QString& key)
{
    auto page = std::make_shared<Template>(names);
    page->template_text = textOfFile(file);
    parse(*page, file);
    templates.Add(page, key);
}

QString Templates_Set::textOfFile(const QString& file)
{
    const QByteArray bytes = readFileBytes(pathOf(file));
    const DecodedText decoded = decodeText(bytes);
    m_files.insert(file, {decoded.encoding, digestOf(bytes)});
    return linesEndedByCr(decoded.text);
}

TextEncoding Templates_Set::encodingOf(const QString& file) const
{
    return m_files.value(file).encoding;
}

bool Templates_Set::isChangedOutside(const QString& file) const
{
    try {
        return digestOf(readFileBytes(pathOf(file))) != m_files.value(file).digest;
    } catch (const RuntimeError&) {
        return false;
    }
}

QString Templates_Set::pathOf(const QString& file) const
{
    return Path + file + u".html"_s;
}
