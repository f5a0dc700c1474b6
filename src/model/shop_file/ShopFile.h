// The shop file as a whole: how a session's shop comes from it and goes back.
#pragma once

#include "base/Unwritable.h"

#include <QByteArray>

class ShopClass;
class ShopSession;
class UnsavedShop;
class XmlFile;

// Makes the session's shop and fills it from the shop file. A file that is missing, malformed or without a "Shop"
// element shows a box and gives false; the shop is then empty and ObjectsCollection is not made. The first half of
// CreateShop. When the session does not know how to save, it does so by writeShopFile from then on. Errors as for
// ShopClass::FromXML.
//
// An unsaved shop, where there is one, is asked first whether it is to be read in the place of the file.
bool loadShop(ShopSession& session, UnsavedShop* unsaved = nullptr);

// The same for a document that was read already, without the box.
bool readShop(ShopSession& session, const XmlFile& file);

// Writes the whole shop file and returns its bytes. The text is complete in memory before the old file is touched: any
// error while it is made leaves the file as it was. ErrorNumber::ObjectNotSet when no shop was loaded, others as for
// shopFileBytes and writeFileBytes.
QByteArray writeShopFile(const ShopSession& session);

// The bytes of the whole shop file, as ShopClass::ToXML fills the element. Each root category is turned into bytes by
// itself, so that a large shop needs no document of its whole size. ErrorNumber::ObjectNotSet when no shop was read.
QByteArray shopFileBytes(ShopClass& shop, Unwritable unwritable = Unwritable::Raises);
