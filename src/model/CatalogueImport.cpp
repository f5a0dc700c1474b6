#include "model/CatalogueImport.h"

#include "base/RuntimeError.h"
#include "model/CatalogueNodes.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"

#include <utility>

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype pathField = 2;

} // namespace

void CatalogueImport::addProduct(QStringList& fields, std::shared_ptr<CategoryClass> top)
{
    if (fields.size() <= pathField) {
        throw RuntimeError(ErrorNumber::SubscriptOutOfRange).because(u"The line has fewer than three fields."_s);
    }
    const QString path = std::move(fields[pathField]);
    std::shared_ptr<CategoryClass> category = std::move(top);
    int level = category ? category->Level() : 0;
    qsizetype end = 0;
    for (qsizetype start = 0; start <= path.size(); start = end + 1) {
        const qsizetype separator = path.indexOf(u'\\', start);
        end = separator < 0 ? path.size() : separator;
        category = categoryBelow(category, level++, QStringView(path).sliced(start, end - start));
    }
    makeProduct(category, fields);
}

std::shared_ptr<CategoryClass> CatalogueImport::categoryBelow(const std::shared_ptr<CategoryClass>& parent, int level,
                                                              QStringView name)
{
    auto names = m_names.find(parent.get());
    if (names == m_names.end()) {
        names = m_names.insert(parent.get(), namesBelow(parent.get()));
    }
    const auto known = names->constFind(QString::fromRawData(name.data(), name.size())); // no text of its own
    if (known != names->cend()) {
        return *known;
    }
    if (level >= MaximumCategoryLevel) {
        throw RuntimeError(ErrorNumber::OutOfStackSpace);
    }
    std::shared_ptr<CategoryClass> made = makeCategory(parent, name.toString());
    names->insert(made->name, made);
    return made;
}

CatalogueImport::Names CatalogueImport::namesBelow(const CategoryClass* parent) const
{
    Names names;
    for (const std::shared_ptr<CategoryClass>& category : parent != nullptr ? parent->categories : m_shop.categories) {
        if (!names.contains(category->name)) { // of two equal names the first counts
            names.insert(category->name, category);
        }
    }
    return names;
}

// It knows no shop until the next load.
std::shared_ptr<CategoryClass> CatalogueImport::makeCategory(const std::shared_ptr<CategoryClass>& parent,
                                                             const QString& name)
{
    const ModelServices& services = m_shop.services();
    auto category = std::make_shared<CategoryClass>(services);
    category->parentCategory = parent;
    category->id = m_shop.getNextProductId();
    category->name = name;
    enterCategory(m_shop, parent, category);
    services.callbacks.AddCategoryToTheTree(parent, category);
    return category;
}

// It knows no shop, and its discount is not entered in the category's, until the next load.
void CatalogueImport::makeProduct(const std::shared_ptr<CategoryClass>& category, QStringList& fields)
{
    const ModelServices& services = m_shop.services();
    auto product = std::make_shared<ProductClass>(services);
    product->id = m_shop.getNextProductId();
    product->category = category;
    product->name = std::move(fields[0]);
    product->Description = std::move(fields[1]);
    enterProduct(m_shop, category, product);
    services.callbacks.AddProductToTheTree(category, product);
}
