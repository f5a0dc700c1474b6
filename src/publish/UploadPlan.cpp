#include "publish/UploadPlan.h"

#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "base/XmlReading.h"

#include <QDir>
#include <QDirIterator>

#include <array>
#include <cstring>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array buttonNames{
    "HEADER_LOGO",
    "HEADER_SEARCH_BUTTON",
    "HEADER_SHOPPINGCART_BUTTON",
    "CATEGORY_CART_BUTTON",
    "PRODUCT_CART_BUTTON",
    "SEARCHPAGE_SHOPPINGCART_BUTTON",
    "MENU_SHOPPINGCART_BUTTON",
    "MENU_SEARCH_BUTTON",
    "MAIN_SEARCH_BUTTON",
    "CARTPAGE_CHECKOUT_BUTTON",
    "CARTPAGE_RECALCULATE_BUTTON",
    "BUYINGFORM_MAKEORDER_BUTTON",
};

constexpr std::array templatePairs{
    std::array{"cart"_L1, "category"_L1},         std::array{"custompage"_L1, "footer"_L1},
    std::array{"header"_L1, "layout"_L1},         std::array{"main"_L1, "menu"_L1},
    std::array{"product"_L1, "search"_L1},        std::array{"checkout"_L1, "buying"_L1},
    std::array{"payed_cancel"_L1, "payed_ok"_L1},
};

constexpr int fixedFiles = 19; // what the progress reckons with beside the pictures

QString childText(const pugi::xml_node& element, const char* tag)
{
    const pugi::xml_node child = element.child(tag);
    return child ? nodeText(child) : QString();
}

QString lastChildText(const pugi::xml_node& element, const char* tag)
{
    QString text;
    for (const pugi::xml_node& child : element.children(tag)) {
        text = nodeText(child);
    }
    return text;
}

// The node behind a whole element in document order, among those below `top`.
pugi::xml_node nodeBehind(pugi::xml_node element, const pugi::xml_node& top)
{
    while (element && element != top && !element.next_sibling()) {
        element = element.parent();
    }
    return element == top ? pugi::xml_node() : element.next_sibling();
}

} // namespace

UploadPart partOf(const UploadItem& item, const ApplicationFolder& folder)
{
    // The backslashes are meant on every platform, as is the whole local path of shop and pictures: the server cuts the
    // bare name behind the last one. Templates go by their bare name.
    switch (item.kind) {
    case UploadItem::Kind::Shop:
        return {folder.shopFile(), folder.path() + "\\shop.xml"_L1, "text/xml"};
    case UploadItem::Kind::Picture:
        // One type for all pictures, whatever their format; meant.
        return {folder.pictureFile(item.name), folder.path() + "\\pictures\\"_L1 + item.name, "image/gif"};
    case UploadItem::Kind::Template:
        break;
    }
    const QString bareName = item.name + ".html"_L1;
    return {folder.templatesFolder() + bareName, bareName, "text/html"};
}

UploadPlan::UploadPlan(const ApplicationFolder& folder, const ServerFileList& serverFiles)
    : m_folder(folder), m_serverFiles(serverFiles)
{
}

UploadPlan::Found UploadPlan::walkShopFile()
{
    XmlFile file;
    file.load(m_folder.shopFile());
    const pugi::xml_node shop = firstDescendant(file.document(), "Shop");
    if (!shop) {
        return Found::NoShop;
    }
    readPicturesFolder();
    addCatalogue(shop);
    const pugi::xml_node design = firstDescendant(shop, "ShopDesign");
    if (!design) {
        return Found::NoShopDesign;
    }
    addDesign(design);
    return Found::All;
}

void UploadPlan::readPicturesFolder()
{
    const QString folder = m_folder.picturesFolder();
    if (!QDir(folder).exists()) {
        throw RuntimeError(ErrorNumber::PathFileAccess,
                           RuntimeError(ErrorNumber::PathFileAccess).description() + ": "_L1 + folder);
    }
    m_localSizes.clear();
    QDirIterator files(folder, QDir::Files | QDir::Hidden | QDir::System);
    while (files.hasNext()) {
        files.next();
        m_localSizes.insert(files.fileName(), files.fileInfo().size());
    }
}

// Each category in document order, at any depth: its picture, then those of all products below it. The products below a
// category within another one have all been seen by then, so that only an outermost category's are walked.
void UploadPlan::addCatalogue(const pugi::xml_node& shop)
{
    pugi::xml_node node = nextNode(shop, shop);
    while (node) {
        if (std::strcmp(node.name(), "Category") != 0) {
            node = nextNode(node, shop);
            continue;
        }
        AddPictureIfNeeded(StripPath(childText(node, "Picture")));
        for (const char* kind : {"Product", "Category"}) {
            for (const pugi::xml_node& below : allDescendants(node, kind)) {
                AddPictureIfNeeded(StripPath(childText(below, "Picture")));
            }
        }
        node = nodeBehind(node, shop);
    }
}

// Names of the design are used as they are.
void UploadPlan::addDesign(const pugi::xml_node& design)
{
    std::array<pugi::xml_node, buttonNames.size()> buttons;
    findFirstDescendants(design, buttonNames, buttons);
    for (const pugi::xml_node& button : buttons) {
        AddPictureIfNeeded(lastChildText(button, "FileName"));
    }
    // The shop file has its custom pages beside ShopDesign and none below it, so that their pictures stay where they
    // are. Looking for them here is meant.
    for (const pugi::xml_node& page : allDescendants(design, "CustomPage")) {
        AddPictureIfNeeded(childText(page, "ImageName"));
    }
}

void UploadPlan::AddPictureIfNeeded(const QString& name)
{
    if (name.isEmpty()) {
        return;
    }
    if (m_serverFiles.hasKey(name)) {
        const auto local = m_localSizes.constFind(name);
        if (local != m_localSizes.constEnd() && *local == m_serverFiles.Item(name).size) {
            return;
        }
    }
    if (!PicturesToUpload.hasKey(name)) {
        PicturesToUpload.Add(name, name);
    }
}

qint16 UploadPlan::ProgressStep() const
{
    return static_cast<qint16>(100 / (PicturesToUpload.Count() + fixedFiles));
}

std::vector<UploadItem> UploadPlan::items() const
{
    std::vector<UploadItem> all{{UploadItem::Kind::Shop, {}, 2}};
    for (const QString& picture : PicturesToUpload) {
        all.push_back({UploadItem::Kind::Picture, picture, 1});
    }
    for (const auto& pair : templatePairs) {
        all.push_back({UploadItem::Kind::Template, pair[0], 1});
        all.push_back({UploadItem::Kind::Template, pair[1], 1 + 2}); // and two more for the pair
    }
    return all;
}

QString StripPath(const QString& name)
{
    return name.sliced(name.lastIndexOf(u'\\') + 1);
}
