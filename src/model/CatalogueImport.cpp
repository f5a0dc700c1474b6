// How a line of the import file finds its way through the categories.
#include "base/RuntimeError.h"
#include "model/CategoryClass.h"
#include "model/ObjectsCollection.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

namespace {

using Categories = KeyedCollection<std::shared_ptr<CategoryClass>>;

constexpr qsizetype pathField = 2;

// One level of a path: its name, and whether more levels follow.
struct PathLevel
{
    QString name;
    bool isLast = true;
};

PathLevel takeLevel(QStringList& fields)
{
    if (fields.size() <= pathField) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange);
    }
    QString& path = fields[pathField];
    const qsizetype separator = path.indexOf(u'\\');
    if (separator < 0) {
        return {path, true};
    }
    const PathLevel level{path.first(separator), false};
    path.remove(0, separator + 1);
    return level;
}

std::shared_ptr<CategoryClass> findByName(const Categories& categories, const QString& name)
{
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        if (category->name == name) {
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
    CheckCategoryLevel(parent.get());
    auto category = std::make_shared<CategoryClass>(services);
    category->parentCategory = parent;
    category->id = CurrentShop(services).getNextProductId();
    category->name = name;
    discountAbove.AddChildDiscount(category->Discount(), category->id);
    categories.Add(category, NodeKey(category->id));
    services.callbacks.AddCategoryToTheTree(parent, category);
    return category;
}

} // namespace

void ShopClass::ImportCategory(QStringList& fields)
{
    const PathLevel level = takeLevel(fields);
    std::shared_ptr<CategoryClass> category = findByName(categories, level.name);
    if (!category) {
        category = makeCategory(*m_services, level.name, nullptr, *m_discount, categories);
    }
    if (level.isLast) {
        category->AddImportedProduct(fields);
    } else {
        category->ImportCategory(fields);
    }
}

void CategoryClass::ImportCategory(QStringList& fields)
{
    const PathLevel level = takeLevel(fields);
    std::shared_ptr<CategoryClass> category = findByName(categories, level.name);
    if (!category) {
        category = makeCategory(*m_services, level.name, shared_from_this(), *Discount(), categories);
    }
    if (level.isLast) {
        category->AddImportedProduct(fields);
    } else {
        category->ImportCategory(fields);
    }
}

// The product's discount is not entered in the category's, and it knows no shop: this is meant.
void CategoryClass::AddImportedProduct(const QStringList& fields)
{
    auto product = std::make_shared<ProductClass>(*m_services);
    product->id = CurrentShop(*m_services).getNextProductId();
    product->category = weak_from_this();
    product->name = fields[0];
    product->Description = fields[1];
    products.Add(product, NodeKey(product->id));
    m_services->callbacks.AddProductToTheTree(shared_from_this(), product);
}
