// What lives once in a running program: the open shop, the collection of its nodes, the preview's cart, the countries,
// the version of the file that was read, and the services that the model works with. The main window owns the one
// session; tests make as many as they like.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/ApplicationTitle.h"
#include "base/Clock.h"
#include "base/KeyedCollection.h"
#include "base/LoadLog.h"
#include "base/UserPrompts.h"
#include "design/DesignServices.h"
#include "model/ModelServices.h"
#include "model/ObjectsCollection.h"
#include "model/ShopClass.h"
#include "model/clsCart.h"

#include <QString>

#include <memory>

class ShopSession
{
public:
    // The prompts and the clock must outlive the session.
    ShopSession(const ApplicationFolder& applicationFolder, UserPrompts& userPrompts, const Clock& today);
    ShopSession(const ShopSession&) = delete;
    ShopSession& operator=(const ShopSession&) = delete;

    const ApplicationFolder folder;
    LoadLog log;
    UserPrompts& prompts;
    const Clock& clock;

    KeyedCollection<QString> CountriesCollection; // in file order; each country is its own key
    QString LoadedShopVersion;
    ObjectsCollection objects;
    SessionCallbacks callbacks;

    // What every class of the model is handed; made of the members above and below.
    const DesignServices designServices;
    const ModelServices services;

    std::shared_ptr<ShopClass> shop; // none until a shop file is read
    std::unique_ptr<clsCart> Cart;   // may be none

    // Reads countries.txt. ErrorNumber::FileNotFound when it is missing, DuplicateKey when a country stands twice.
    bool LoadCountries();

    // Makes ObjectsCollection new and enters the shop and all nodes, each category before its contents, sub-categories
    // before products: the order of the tree. ErrorNumber::DuplicateKey when an id stands twice.
    void registerShop();
};
