// The names of the pages that one menu shows, in order. ShopDesignClass owns five of them. "Home page" and "Shopping
// cart page" have a fixed meaning; every other name is the name of a custom page, which need not exist.
#pragma once

#include "base/KeyedCollection.h"
#include "base/XmlNode.h"
#include "design/DesignServices.h"

#include <QString>

class clsSelectedCustomPages
{
public:
    explicit clsSelectedCustomPages(const DesignServices& services, const QString& tag = QString());

    QString Tag;     // the name of the element in the shop file
    QString Clicked; // a place for a name; the file does not have it

    // Names in order; each is its own key.
    const KeyedCollection<QString>& selectedPages() const { return m_selectedPages; }

    // Appends a name. ErrorNumber::DuplicateKey when it is there already.
    void Add(const QString& name);
    void Clear();
    // Gives an entry another name at its place. An entry that has the new name already stays, and the old one goes;
    // without an entry of the old name nothing happens.
    void rename(const QString& from, const QString& to);

    // The node is the ShopDesign element. An empty Tag shows a box and changes nothing. ErrorNumber::ObjectNotSet when
    // a row of the selection has no child, DuplicateKey when a name stands twice.
    void FromXML(const pugi::xml_node& node);
    void ToXML(pugi::xml_node node) const;

private:
    const DesignServices* m_services;
    KeyedCollection<QString> m_selectedPages;
};
