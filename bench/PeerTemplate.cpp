#include "PeerTemplate.h"

#include <QRegularExpression>
#include <QStringList>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace {

void fill(ctemplate::TemplateDictionary& dictionary, const PeerRow& row)
{
    for (const auto& [name, text] : row.texts) {
        dictionary.SetValue(name, text);
    }
    for (const std::string& section : row.sections) {
        dictionary.ShowSection(section);
    }
    for (const auto& [name, rows] : row.lists) {
        for (const PeerRow& below : rows) {
            fill(*dictionary.AddSectionDictionary(name), below);
        }
    }
}

bool isList(const VariableValue& value)
{
    return std::holds_alternative<std::shared_ptr<const VariableRows>>(value);
}

} // namespace

PeerTemplate::PeerTemplate(const QString& source)
    : m_template(ctemplate::Template::StringToTemplate(convert(source), ctemplate::DO_NOT_STRIP))
{
}

std::string PeerTemplate::convert(const QString& source)
{
    struct Block
    {
        QString name;
        QString end;
        bool isList;
    };
    std::vector<Block> blocks;
    const auto innermostList = [&blocks] {
        const auto list = std::find_if(blocks.rbegin(), blocks.rend(), [](const Block& block) { return block.isList; });
        return list == blocks.rend() ? QString() : list->name;
    };
    static const QRegularExpression tag(u"<!--:(?:(if|ifnot|cycle|end):)?([^:=]*)(?:=([^:]*))?:-->"_s);
    QString text;
    qsizetype at = 0;
    for (const QRegularExpressionMatch& match : tag.globalMatch(source)) {
        text += QStringView(source).sliced(at, match.capturedStart() - at);
        at = match.capturedEnd();
        const QString kind = match.captured(1);
        const QString name = match.captured(2);
        const QString list = innermostList();
        if (kind == u"end") {
            text += blocks.back().end;
            blocks.pop_back();
        } else if (kind == u"cycle") {
            blocks.push_back({name, u"{{/%1}}"_s.arg(name), true});
            text += u"{{#%1}}"_s.arg(name);
        } else if (kind.isEmpty()) {
            m_shown.push_back({list, name});
            text += u"{{%1}}"_s.arg(name);
        } else {
            const QString section = u"C%1"_s.arg(m_comparisons.size());
            m_comparisons.push_back({list, name, match.captured(3), kind == u"if", section.toStdString()});
            blocks.push_back({name, u"{{/%1}}"_s.arg(section), false});
            text += u"{{#%1}}"_s.arg(section);
        }
    }
    text += QStringView(source).sliced(at);
    return text.toStdString();
}

bool PeerTemplate::isCompared(const QString& list, const QString& name) const
{
    return std::any_of(m_comparisons.begin(), m_comparisons.end(), [&](const Comparison& comparison) {
        return comparison.list == list && comparison.name == name;
    });
}

PeerRow PeerTemplate::rowOf(const Variables& variables, const QString& list, Unshown unshown) const
{
    PeerRow row;
    for (int i = 1; i <= variables.Count(); ++i) {
        const QString& name = variables.Key(i);
        const VariableValue& value = variables.Item(i);
        if (isList(value)) {
            std::vector<PeerRow> rows;
            for (const Variables& below : rowsOf(value)) {
                rows.push_back(rowOf(below, name, unshown));
            }
            row.lists.emplace_back(name.toStdString(), std::move(rows));
        } else {
            const bool isShown = std::find(m_shown.begin(), m_shown.end(), Shown{list, name}) != m_shown.end();
            if (isShown || (unshown == Unshown::Keep && !isCompared(list, name))) {
                row.texts.emplace_back(name.toStdString(), textOf(value).toStdString());
            }
        }
    }
    for (const Comparison& comparison : m_comparisons) {
        if (comparison.list == list) {
            const bool isEqual =
                variables.exists(comparison.name) && textOf(variables.Item(comparison.name)) == comparison.value;
            if (isEqual == comparison.wanted) {
                row.sections.push_back(comparison.section);
            }
        }
    }
    return row;
}

std::string PeerTemplate::fillAndExpand(const PeerRow& page) const
{
    ctemplate::TemplateDictionary dictionary("page");
    fill(dictionary, page);
    std::string out;
    m_template->Expand(&out, &dictionary);
    return out;
}
