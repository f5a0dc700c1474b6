#include "pages/PagesTest.h"

#include "model/ProductClass.h"
#include "pages/RenderPage.h"

using namespace Qt::StringLiterals;

namespace {

constexpr int RowIndent = 2;

qint16 markedWidth(ImageSlot slot)
{
    return static_cast<qint16>(100 + static_cast<int>(slot));
}

qint16 markedHeight(ImageSlot slot)
{
    return static_cast<qint16>(10 + static_cast<int>(slot));
}

const std::array<ImageSlot, ImageSlotCount>& everySlot()
{
    static const auto table = [] {
        std::array<ImageSlot, ImageSlotCount> every{};
        for (std::size_t i = 0; i < every.size(); ++i) {
            every[i] = static_cast<ImageSlot>(i);
        }
        return every;
    }();
    return table;
}

QString kindOf(const VariableValue& value)
{
    static const QString kinds[] = {u""_s, u" (integer)"_s, u" (boolean)"_s, u" (single)"_s, u" (object)"_s, u""_s};
    return kinds[value.index()];
}

} // namespace

PagesTest::PagesTest()
{
    session.shop = std::make_shared<ShopClass>(session.services);
    session.shop->name = u"Corner Shop"_s;
    session.shop->shop_currency = u"EUR"_s;
    session.Cart = std::make_unique<clsCart>(session.services);
    session.registerShop();
}

std::shared_ptr<CategoryClass> PagesTest::addCategory(const QString& id, const QString& name,
                                                      const std::shared_ptr<CategoryClass>& parent)
{
    auto category = std::make_shared<CategoryClass>(session.services);
    category->shop = session.shop.get();
    category->parentCategory = parent;
    category->id = id;
    category->name = name;
    auto& siblings = parent == nullptr ? shop().categories : parent->categories;
    siblings.Add(category, nodeKey(id));
    session.objects.Add(category, nodeKey(id));
    return category;
}

std::shared_ptr<ProductClass> PagesTest::addProduct(const QString& id, const QString& name, const QString& price,
                                                    const std::shared_ptr<CategoryClass>& category)
{
    auto product = std::make_shared<ProductClass>(session.services);
    product->shop = session.shop.get();
    product->category = category;
    product->id = id;
    product->name = name;
    product->Price()->Value = price;
    product->setRelatedIds({});
    category->products.Add(product, nodeKey(id));
    session.objects.Add(product, nodeKey(id));
    return product;
}

void PagesTest::addVariant(ProductClass& product, const QString& description, const QString& value)
{
    const auto variant = product.Price()->AddMultiPrice();
    variant->Description = description;
    variant->Value = value;
}

void PagesTest::setDiscount(ProductClass& product, const QString& percent)
{
    product.Price()->Discount()->Status = DiscountStatus::Specific;
    product.Price()->Discount()->setSpecific(percent);
}

std::shared_ptr<CustomPageClass> PagesTest::addCustomPage(const QString& name, const QString& text)
{
    auto page = std::make_shared<CustomPageClass>();
    page->pageName = name;
    page->ContentText = text;
    shop().CustomPages.Add(page, name);
    return page;
}

void PagesTest::addToCart(const std::shared_ptr<ProductClass>& product, const QString& price, const QString& quantity)
{
    session.Cart->AddNewProduct(product->id, product->name, CopyProductForPreview(*product), price, quantity);
}

void PagesTest::markOptions()
{
    for (const DesignOptionRow& row : designOptionTable()) {
        design().setOption(row.option, u'<' + row.name + u'>');
    }
}

void PagesTest::markSlots()
{
    for (const ImageSlot slot : everySlot()) {
        clsSelectedImage& image = *design().Image(slot);
        setPicture(image, tagOf(slot).toLower() + u".png"_s, markedWidth(slot), markedHeight(slot));
        image.SelectionType = ImageSelection::Image;
        image.TextValue = u"text of "_s + tagOf(slot);
    }
}

void PagesTest::setPicture(clsSelectedImage& image, const QString& fileName, qint16 width, qint16 height)
{
    image.imageFileName = fileName;
    image.setWidthBmp(width);
    image.setHeightBmp(height);
}

void PagesTest::addTemplate(const QString& name, const QString& text)
{
    auto page = std::make_shared<Template>(templates.names);
    page->template_text = text;
    page->Parse();
    templates.templates.Add(page, name);
}

void PagesTest::setLayout(const QString& text)
{
    templates.layout_template = std::make_shared<Template>(templates.names);
    templates.layout_template->template_text = text;
    templates.layout_template->Parse();
}

Variables PagesTest::variablesOf(const QString& pageName, const PageObject& object)
{
    return pageVariables(context, pageName, object);
}

QString PagesTest::dumpOf(const QString& pageName, const PageObject& object)
{
    const Variables vars = variablesOf(pageName, object);
    EXPECT_GE(vars.Count(), 2);
    EXPECT_EQ(dump(vars, 1, 0).section(u'\n', 0, 1), u"server = http://previewmode/\nshop_currency = EUR"_s);
    return dump(vars, 3, 0);
}

QString PagesTest::dumpOfList(const QString& pageName, const PageObject& object, const QString& list)
{
    const Variables vars = variablesOf(pageName, object);
    QString text;
    for (const Variables& row : rowsOf(vars.Item(list))) {
        text += u"row\n"_s + dump(row, 1, RowIndent);
    }
    return text;
}

QString PagesTest::valueOf(const QString& pageName, const PageObject& object, const QString& key)
{
    const Variables vars = variablesOf(pageName, object);
    return vars.exists(key) ? textOf(vars.Item(key)) : u"MISSING"_s;
}

QString PagesTest::valueInRow(const QString& pageName, const PageObject& object, const QString& list, int row,
                              const QString& key)
{
    const Variables vars = variablesOf(pageName, object);
    const VariableRows& rows = rowsOf(vars.Item(list));
    if (row > static_cast<int>(rows.size())) {
        return u"NO SUCH ROW"_s;
    }
    const Variables& found = rows[static_cast<std::size_t>(row - 1)];
    return found.exists(key) ? textOf(found.Item(key)) : u"MISSING"_s;
}

QString PagesTest::dump(const Variables& vars, int from, int indent) const
{
    const QString blanks(indent, u' ');
    QString text;
    for (int i = from; i <= vars.Count(); ++i) {
        const VariableValue& value = vars.Item(i);
        if (std::holds_alternative<std::shared_ptr<const VariableRows>>(value)) {
            text += blanks + vars.Key(i) + u":\n"_s;
            for (const Variables& row : rowsOf(value)) {
                text += blanks + u"  row\n"_s + dump(row, 1, indent + 2 * RowIndent);
            }
        } else {
            text += blanks + vars.Key(i) + u" = "_s + textOf(value) + kindOf(value) + u'\n';
        }
    }
    return text.replace(files.folder().path(), u"FOLDER"_s);
}

QString imageDump(const QString& key, const QString& type, const QString& file, const QString& text, int width,
                  int height)
{
    return u"%1_TYPE = %2\n%1_FILENAME = FOLDER/pictures/%3\n%1_TEXT = %4\n%1_WIDTH = %5 (integer)\n%1_HEIGHT = %6 (integer)\n"_s
        .arg(key, type, file, text, QString::number(width), QString::number(height));
}

QString slotDump(const QString& key)
{
    for (const ImageSlot slot : everySlot()) {
        if (tagOf(slot) == key) {
            return imageDump(key, u"IMAGE"_s, key.toLower() + u".png"_s, u"text of "_s + key, markedWidth(slot),
                             markedHeight(slot));
        }
    }
    return u"NO SUCH SLOT\n"_s;
}

QString optionDump(const QStringList& names)
{
    QString text;
    for (const QString& name : names) {
        text += name + u" = <"_s + name + u">\n"_s;
    }
    return text;
}

QString indented(const QString& lines)
{
    QString text;
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        text += u"  "_s + line + u'\n';
    }
    return text;
}
