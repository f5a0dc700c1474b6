// What every page is made from: the session with its shop, its cart and its catalogue, and the templates with their
// table of names. It refers to both and is cheap to copy; the preview makes one.
#pragma once

#include "base/ApplicationFolder.h"
#include "model/ShopSession.h"
#include "template_engine/Templates_Set.h"

// The names of the templates that the shop's pages are poured into.
TemplateNames shopTemplateNames();

class PageContext
{
public:
    // Both must outlive the context.
    PageContext(ShopSession& session, Templates_Set& templates)
        : m_session(&session), m_templates(&templates), m_picturesFolder(session.folder.picturesFolder())
    {
    }

    // Each raises ErrorNumber::ObjectNotSet when there is none.
    const std::shared_ptr<ShopClass>& sharedShop() const;
    ShopClass& shop() const { return *sharedShop(); }
    ShopDesignClass& design() const;
    clsCart& cart() const;

    const ObjectsCollection& objects() const { return m_session->objects; }
    const ApplicationFolder& folder() const { return m_session->folder; }
    // With its trailing separator; put together once, since every row of a page asks for it.
    const QString& picturesFolder() const { return m_picturesFolder; }
    const Templates_Set& templates() const { return *m_templates; }
    // An empty set of variables for these templates.
    Variables newVariables() const { return Variables(m_templates->names); }

private:
    ShopSession* m_session;
    Templates_Set* m_templates;
    QString m_picturesFolder;
};
