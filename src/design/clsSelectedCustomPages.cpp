#include "design/clsSelectedCustomPages.h"

#include "base/ApplicationTitle.h"
#include "base/RuntimeError.h"
#include "base/XMLUtils.h"
#include "base/XmlReading.h"

#include <utility>

using namespace Qt::StringLiterals;

clsSelectedCustomPages::clsSelectedCustomPages(const DesignServices& services, const QString& tag)
    : Tag(tag), m_services(&services)
{
}

void clsSelectedCustomPages::Add(const QString& name)
{
    m_selectedPages.Add(name, name);
}

void clsSelectedCustomPages::Clear()
{
    m_selectedPages.Clear();
}

void clsSelectedCustomPages::rename(const QString& from, const QString& to)
{
    const int old = m_selectedPages.indexOf(from);
    if (old == 0) {
        return;
    }
    const int taken = m_selectedPages.indexOf(to);
    KeyedCollection<QString> names;
    for (int place = 1; place <= m_selectedPages.Count(); ++place) {
        if (place != old) {
            const QString& name = m_selectedPages.Item(place);
            names.Add(name, name);
        } else if (taken == 0 || taken == old) {
            names.Add(to, to);
        }
    }
    m_selectedPages = std::move(names);
}

void clsSelectedCustomPages::FromXML(const pugi::xml_node& node)
{
    if (Tag.isEmpty()) {
        m_services->prompts.showMessage(
            applicationTitle(), u"You didn't type tag for one of the custom page selection"_s, PromptIcon::Critical);
        return;
    }
    Clear();
    for (const std::optional<QString>& name : firstGrandchildTexts(firstDescendant(node, Tag.toUtf8().constData()))) {
        if (!name) {
            throw RuntimeError(ErrorNumber::ObjectNotSet);
        }
        Add(*name);
    }
}

void clsSelectedCustomPages::ToXML(pugi::xml_node node) const
{
    const pugi::xml_node element = AddChildElement(node, Tag.toUtf8().constData(), u"HUERAGA"_s);
    for (const QString& name : m_selectedPages) {
        const pugi::xml_node row = AddChildElement(element, "PAGES", u"HUERAGA"_s);
        AddChildElement(row, "SelectedPage", name);
    }
}
