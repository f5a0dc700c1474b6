#include "model/shop_file/ShopFile.h"

#include "base/FileBytes.h"
#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopReading.h"

using namespace Qt::StringLiterals;

bool loadShop(ShopSession& session)
{
    session.log.WriteLoadLog(u"Start shop creating"_s);
    XmlFile file;
    file.load(session.folder.shopFile());
    const bool isShop = readShop(session, file);
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

void writeShopFile(const ShopSession& session)
{
    writeFileBytes(session.folder.shopFile(), shopFileBytes(currentShop(session.services)));
}
