// One of the shop's templates in the language of Google's ctemplate, and the variables of a page in its types. Each
// comparison of a template becomes a section of the peer's, which its rows show or not: the comparisons are worked out
// ahead, so that the peer does nothing but fill and expand.
#pragma once

#include "template_engine/Variables.h"

#include <QString>

#include <ctemplate/template.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

// What the peer is filled from: the page, or one row of a list.
struct PeerRow
{
    std::vector<std::pair<std::string, std::string>> texts;
    std::vector<std::string> sections; // that are shown
    std::vector<std::pair<std::string, std::vector<PeerRow>>> lists;
};

class PeerTemplate
{
public:
    // The source of a template of ours without fallbacks. Names are compared letter for letter.
    explicit PeerTemplate(const QString& source);

    // The variables in the peer's types. One that is only compared is left out, since its sections say it all. One that
    // the template does not use at all is handed over like the others, or left out, too.
    enum class Unshown { Keep, LeaveOut };
    PeerRow rowOf(const Variables& variables, Unshown unshown) const { return rowOf(variables, QString(), unshown); }

    std::string fillAndExpand(const PeerRow& page) const;

private:
    struct Comparison
    {
        QString list; // whose rows it looks at; empty for the page
        QString name;
        QString value;
        bool wanted;
        std::string section;
    };
    struct Shown
    {
        QString list;
        QString name;
        bool operator==(const Shown&) const = default;
    };

    PeerRow rowOf(const Variables& variables, const QString& list, Unshown unshown) const;
    std::string convert(const QString& source);
    QString openingTag(const QString& tag, const QString& list);
    bool isCompared(const QString& list, const QString& name) const;

    std::vector<Comparison> m_comparisons;
    std::vector<Shown> m_shown;
    std::unique_ptr<ctemplate::Template> m_template;
};
