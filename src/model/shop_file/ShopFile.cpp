#include "model/shop_file/ShopFile.h"

#include "base/Circumstances.h"
#include "base/FileBytes.h"
#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopReading.h"
#include "model/shop_file/UnsavedShop.h"

#include <QFileInfo>

#include <utility>

using namespace Qt::StringLiterals;

namespace {

// None when the file cannot be read.
QByteArray bytesOf(const QString& path)
{
    try {
        return readFileBytes(path);
    } catch (const RuntimeError&) {
        return {};
    }
}

} // namespace

bool loadShop(ShopSession& session, UnsavedShop* unsaved)
{
    session.log.WriteLoadLog(u"Start shop creating"_s);
    const bool opensUnsaved = unsaved != nullptr && unsaved->askToOpen();
    const QString path = opensUnsaved ? session.folder.unsavedShopFile() : session.folder.shopFile();
    QByteArray bytes = bytesOf(path);
    if (unsaved != nullptr) {
        unsaved->shopIsReadFrom(bytes);
    }
    XmlFile file;
    file.parse(std::move(bytes));
    const bool isShop =
        during([&] { return u"The file %1 was being read."_s.arg(inQuotes(QFileInfo(path).fileName())); },
               [&] { return readShop(session, file); });
    if (!isShop) {
        session.prompts.showMessage(applicationTitle(), u"Error in the configuration XML file. No 'Shop' node."_s,
                                    PromptIcon::None);
    }
    return isShop;
}

bool readShop(ShopSession& session, const XmlFile& file)
{
    if (!session.callbacks.SaveShop) {
        session.callbacks.SaveShop = [&session] { writeShopFile(session); };
    }
    session.shop = std::make_shared<ShopClass>(session.services);
    const pugi::xml_node element = firstDescendant(file.document(), "Shop");
    if (!element) {
        return false;
    }
    ShopReading reading(session.LoadedShopVersion, file.size());
    session.shop->FromXML(element, reading);
    return true;
}

QByteArray writeShopFile(const ShopSession& session)
{
    return during([] { return u"The file \"shop.xml\" was being written."_s; },
                  [&] {
                      QByteArray bytes = shopFileBytes(currentShop(session.services));
                      writeFileBytes(session.folder.shopFile(), bytes);
                      return bytes;
                  });
}
