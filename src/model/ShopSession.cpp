#include "model/ShopSession.h"

#include "base/DelimitedFields.h"
#include "base/FileBytes.h"
#include "base/TextFile.h"

using namespace Qt::StringLiterals;

ShopSession::ShopSession(const ApplicationFolder& applicationFolder, UserPrompts& userPrompts, const Clock& today)
    : folder(applicationFolder),
      log(folder),
      prompts(userPrompts),
      clock(today),
      designServices{log, prompts, folder},
      services{designServices, clock, objects, callbacks, shop}
{
}

bool ShopSession::LoadCountries()
{
    log.WriteLoadLog(u"Start Function LoadCountries"_s);
    for (const QString& country : delimitedFields(readTextFile(folder.countriesFile()).text)) {
        CountriesCollection.Add(country, country);
    }
    return true;
}

namespace {

int nodeCount(const KeyedCollection<std::shared_ptr<CategoryClass>>& categories)
{
    int count = categories.Count();
    for (const std::shared_ptr<CategoryClass>& category : categories) {
        count += category->products.Count() + nodeCount(category->categories);
    }
    return count;
}

void registerCategory(ObjectsCollection& objects, const std::shared_ptr<CategoryClass>& category)
{
    objects.Add(category, nodeKey(category->id));
    for (const std::shared_ptr<CategoryClass>& child : category->categories) {
        registerCategory(objects, child);
    }
    for (const std::shared_ptr<ProductClass>& product : category->products) {
        objects.Add(product, nodeKey(product->id));
    }
}

} // namespace

void ShopSession::registerShop()
{
    const ShopClass& opened = currentShop(services);
    objects.create(nodeCount(opened.categories) + 1);
    objects.Add(shop, shopNodeKey());
    for (const std::shared_ptr<CategoryClass>& category : opened.categories) {
        registerCategory(objects, category);
    }
}
