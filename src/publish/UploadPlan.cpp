#include "publish/UploadPlan.h"

#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "base/XmlReading.h"
#include "design/ImageSlots.h"
#include "design/PageTable.h"

#include <QDir>
#include <QDirIterator>

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr int fixedFiles = 19; // what the progress reckons with beside the pictures

// What names that lie in each other may take beyond the file's size; nobody writes such names.
constexpr qsizetype overlappingNames = 8'000'000;

// The slots' tags in the order in which their pictures go up.
std::array<const char*, ImageSlotCount> slotTagsInOrder()
{
    std::array<const char*, ImageSlotCount> tags{};
    for (const ImageSlotRow& row : imageSlotTable()) {
        tags[static_cast<std::size_t>(row.sending - 1)] = row.tag.data();
    }
    return tags;
}

QString childText(const pugi::xml_node& element, const char* tag, XmlTexts& texts)
{
    return texts.textOr(element.child(tag), {});
}

QString lastChildText(const pugi::xml_node& element, const char* tag, XmlTexts& texts)
{
    pugi::xml_node last;
    for (const pugi::xml_node& child : element.children(tag)) {
        last = child;
    }
    return texts.textOr(last, {});
}

// The node behind a whole element in document order, among those below `top`.
pugi::xml_node nodeBehindElement(pugi::xml_node element, const pugi::xml_node& top)
{
    while (element && element != top && !element.next_sibling()) {
        element = element.parent();
    }
    return element == top ? pugi::xml_node() : element.next_sibling();
}

} // namespace

UploadPart partOf(const UploadItem& item, const ApplicationFolder& folder)
{
    // On every platform the shop and the pictures go by their whole local path, with backslashes: the server takes the
    // bare name from behind the last one. Templates go by their bare name.
    switch (item.kind) {
    case UploadItem::Kind::Shop:
        return {folder.shopFile(), folder.path() + "\\shop.xml"_L1, "text/xml"};
    case UploadItem::Kind::Picture:
        // Deliberately one type for all pictures, whatever their format.
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
    XmlTexts texts(file.size() + overlappingNames);
    addCatalogue(shop, texts);
    const pugi::xml_node design = firstDescendant(shop, "ShopDesign");
    if (!design) {
        return Found::NoShopDesign;
    }
    addDesign(design, texts);
    return Found::All;
}

void UploadPlan::readPicturesFolder()
{
    const QString folder = m_folder.picturesFolder();
    if (!QDir(folder).exists()) {
        failAt(ErrorNumber::PathFileAccess, folder);
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
void UploadPlan::addCatalogue(const pugi::xml_node& shop, XmlTexts& texts)
{
    pugi::xml_node node = nextNode(shop, shop);
    while (node) {
        if (!isNamed(node, "Category")) {
            node = nextNode(node, shop);
            continue;
        }
        AddPictureIfNeeded(StripPath(childText(node, "Picture", texts)));
        for (const char* kind : {"Product", "Category"}) {
            for (const pugi::xml_node& below : allDescendants(node, kind)) {
                AddPictureIfNeeded(StripPath(childText(below, "Picture", texts)));
            }
        }
        node = nodeBehindElement(node, shop);
    }
}

// Names of the design are used as they are.
void UploadPlan::addDesign(const pugi::xml_node& design, XmlTexts& texts)
{
    std::array<pugi::xml_node, ImageSlotCount> slotNodes;
    findFirstDescendants(design, slotTagsInOrder(), slotNodes);
    for (const pugi::xml_node& slot : slotNodes) {
        AddPictureIfNeeded(lastChildText(slot, "FileName", texts));
    }
    // The shop file has its custom pages beside ShopDesign and none below it, so their pictures do not go up. The
    // search here is deliberate.
    for (const pugi::xml_node& page : allDescendants(design, "CustomPage")) {
        AddPictureIfNeeded(childText(page, "ImageName", texts));
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
    bool endsPair = false;
    for (const PageRow& page : pageTable()) {
        all.push_back({UploadItem::Kind::Template, page.name, endsPair ? 1 + 2 : 1}); // two more for the pair
        endsPair = !endsPair;
    }
    return all;
}

QString StripPath(const QString& name)
{
    return name.sliced(name.lastIndexOf(u'\\') + 1);
}
