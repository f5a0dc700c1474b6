// How a line of the import file finds its way through the categories.
#include "base/RuntimeError.h"
#include "model/CategoryClass.h"
#include "model/ObjectsCollection.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

#include <utility>

namespace {

using Categories = KeyedCollection<std::shared_ptr<CategoryClass>>;

constexpr qsizetype pathField = 2;

// The path of a line, less the levels that were gone through. Error 9 when the line is too short to have one.
QString& pathOf(QStringList& fields)
{
    if (fields.size() <= pathField) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    return fields[pathField];
}

// Where the first level of a path ends.
qsizetype levelEnd(const QString& path)
{
    const qsizetype separator = path.indexOf(u'\\');
    return separator < 0 ? path.size() : separator;
}

// The last letters go first: names in one shop are often numbered, and differ there.
bool areEqual(QStringView a, QStringView b)
{
    return a.size() == b.size() && (a.isEmpty() || (a.back() == b.back() && a == b));
}

std::shared_ptr<CategoryClass> findByName(const Categories& categories, QStringView name)
{
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        if (areEqual(category->name, name)) {
            return category;
        }
    }
    return nullptr;
}

// A new category of that name among the given ones. It knows no shop: this is meant.
std::shared_ptr<CategoryClass> makeCategory(const ModelServices& services, const QString& name,
                                            const std::shared_ptr<CategoryClass>& parent, clsDiscount& discountAbove,
                                            Categories& categories)
{
    checkCategoryLevel(parent.get());
    auto category = std::make_shared<CategoryClass>(services);
    category->parentCategory = parent;
    category->id = currentShop(services).getNextProductId();
    category->name = name;
    discountAbove.AddChildDiscount(category->Discount(), category->id);
    categories.Add(category, nodeKey(category->id));
    services.callbacks.AddCategoryToTheTree(parent, category);
    services.objects.Add(category, nodeKey(category->id));
    return category;
}

} // namespace

void ShopClass::ImportCategory(QStringList& fields)
{
    QString& path = pathOf(fields);
    const qsizetype end = levelEnd(path);
    std::shared_ptr<CategoryClass> category = findByName(categories, QStringView(path).first(end));
    if (!category) {
        category = makeCategory(*m_services, path.first(end), nullptr, *m_discount, categories);
    }
    if (end == path.size()) {
        category->AddImportedProduct(fields);
    } else {
        path.remove(0, end + 1);
        category->ImportCategory(fields);
    }
}

void CategoryClass::ImportCategory(QStringList& fields)
{
    QString& path = pathOf(fields);
    const qsizetype end = levelEnd(path);
    std::shared_ptr<CategoryClass> category = findByName(categories, QStringView(path).first(end));
    if (!category) {
        category = makeCategory(*m_services, path.first(end), shared_from_this(), *Discount(), categories);
    }
    if (end == path.size()) {
        category->AddImportedProduct(fields);
    } else {
        path.remove(0, end + 1);
        category->ImportCategory(fields);
    }
}

// The product's discount is not entered in the category's, and it knows no shop: this is meant.
void CategoryClass::AddImportedProduct(QStringList& fields)
{
    auto product = std::make_shared<ProductClass>(*m_services);
    product->id = currentShop(*m_services).getNextProductId();
    product->category = weak_from_this();
    product->name = std::move(fields[0]);
    product->Description = std::move(fields[1]);
    products.Add(product, nodeKey(product->id));
    m_services->callbacks.AddProductToTheTree(shared_from_this(), product);
    m_services->objects.Add(product, nodeKey(product->id));
}
