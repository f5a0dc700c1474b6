#include "CarefulOwner.h"

#include "base/Dates.h"
#include "editors/DateField.h"
#include "editors/NumericBox.h"
#include "editors/catalogue/CellContent.h"
#include "editors/catalogue/CustomGrid.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/clsCart.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"

#include <QListWidget>
#include <QSet>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array words = {"Tea", "Green leaves", "A cup for two", "Blue", "Harbour Road 5", "Sencha"};

// The active object is not that of the selected node.
bool differs(MainForm& window)
{
    return window.SelectedNode && std::holds_alternative<std::shared_ptr<ShopClass>>(window.ActiveObject) &&
           window.SelectedNode->parent;
}

template <class Work>
void forEachProduct(const CategoryClass& category, const Work& work)
{
    for (const std::shared_ptr<CategoryClass>& below : category.categories) {
        forEachProduct(*below, work);
    }
    for (const std::shared_ptr<ProductClass>& product : category.products) {
        work(*product);
    }
}

template <class Work>
void forEachProduct(const ShopClass& shop, const Work& work)
{
    for (const std::shared_ptr<CategoryClass>& category : shop.categories) {
        forEachProduct(*category, work);
    }
}

// The page that is open in the window of the pages is one of those that menus show.
bool isShownByMenu(MainForm& window)
{
    const auto* list = window.findChild<QListWidget*>(u"CustomPagesListCtl"_s);
    if (list->currentItem() == nullptr) {
        return false;
    }
    const ShopDesignClass& design = *window.session().shop->ShopDesign;
    for (std::size_t selection = 0; selection < PageSelectionCount; ++selection) {
        if (design.Pages(static_cast<PageSelection>(selection))->selectedPages().hasKey(list->currentItem()->text())) {
            return true;
        }
    }
    return false;
}

// A product below the selected category is in the cart, or related to one that is not below it.
bool isMissedElsewhere(MainForm& window)
{
    const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&window.ActiveObject);
    if (!category) {
        return true; // panel and node differ: which one goes is hard to tell
    }
    QSet<QString> ids;
    forEachProduct(**category, [&](const ProductClass& product) { ids.insert(product.id); });
    bool isMissed = false;
    if (const clsCart* cart = window.session().Cart.get()) {
        for (const std::shared_ptr<clsCartProduct>& line : *cart) {
            isMissed = isMissed || ids.contains(line->id);
        }
    }
    forEachProduct(*window.session().shop, [&](const ProductClass& product) {
        const QStringList related = product.related;
        isMissed = isMissed ||
                   (!ids.contains(product.id) &&
                    std::any_of(related.begin(), related.end(), [&](const QString& id) { return ids.contains(id); }));
    });
    return isMissed;
}

bool holdsNumber(const QString& text)
{
    return reasonAgainst(CellContent::Limit, text).isEmpty();
}

// Whether every product that inherits its discount, or that is about to, has a price for it.
bool hasEveryPrice(MainForm& window)
{
    const auto* active = std::get_if<std::shared_ptr<ProductClass>>(&window.ActiveObject);
    bool hasAll = true;
    forEachProduct(*window.session().shop, [&](ProductClass& product) {
        const bool inherits = product.Price()->Discount()->Status == DiscountStatus::Inherit;
        const bool isMeant = active && active->get() == &product;
        hasAll = hasAll && ((!inherits && !isMeant) || holdsNumber(product.Price()->Value));
    });
    return hasAll;
}

QString nameBeyond(const QWidget& widget)
{
    const QWidget* named = &widget;
    while (named && (named->objectName().isEmpty() || named->objectName() == u"IconImg"_s ||
                     named->objectName() == u"TitleLbl"_s || named->objectName().startsWith(u"qt_"_s))) {
        named = named->parentWidget();
    }
    return named ? named->objectName() : QString();
}

// The grid that a widget is a part of.
const CustomGrid* gridOf(const QWidget& widget)
{
    for (const QWidget* above = &widget; above; above = above->parentWidget()) {
        if (const auto* grid = qobject_cast<const CustomGrid*>(above)) {
            return grid;
        }
    }
    return nullptr;
}

// The cell that is edited stands in a column whose title does not speak of words.
bool asksForNumber(const QWidget& field)
{
    const CustomGrid* grid = gridOf(field);
    if (!grid) {
        return false;
    }
    const QTableWidgetItem* title = grid->BaseGrd->horizontalHeaderItem(grid->BaseGrd->currentColumn());
    const QString text = title ? title->text() : QString();
    return !text.contains(u"name"_s, Qt::CaseInsensitive) && !text.contains(u"description"_s, Qt::CaseInsensitive);
}

} // namespace

QString fittingText(Dice& dice, const QWidget& field)
{
    if (qobject_cast<const DateField*>(&field)) {
        return localDateText(QDate(2026, 1, 1).addDays(dice.below(400)));
    }
    if (qobject_cast<const NumericBox*>(&field) || asksForNumber(field)) {
        return QString::number(1 + dice.below(90));
    }
    return QString::fromLatin1(dice.pick(words)) + u' ' + QString::number(dice.below(1000));
}

QByteArray fittingImportFile(Dice& dice)
{
    QByteArray lines;
    for (int count = 1 + dice.below(20); count > 0; --count) {
        lines +=
            QByteArray(dice.pick(words)) + ",\"A good one, too\"," + dice.pick(words) + '\\' + dice.pick(words) + "\n";
    }
    return lines;
}

bool mayPress(const QWidget& widget, MainForm& window)
{
    struct Care
    {
        const char* name;
        bool (*isDue)(MainForm& form);
    };
    constexpr auto lacksPrice = [](MainForm& form) { return !hasEveryPrice(form); };
    static constexpr std::array cares = {
        Care{"DeletePageBtn", isShownByMenu}, Care{"RemoveCategorySBtn", isMissedElsewhere},
        Care{"InheritOpt", lacksPrice},       Care{"ShopNewCategorySBtn", differs},
        Care{"NewCategorySBtn", differs},
    };
    const QString name = nameBeyond(widget);
    return std::none_of(cares.begin(), cares.end(),
                        [&](const Care& care) { return name == QLatin1String(care.name) && care.isDue(window); });
}

bool mayChoose(const QString& action, MainForm& window)
{
    return (action != u"mnuRemoveCategory"_s || !isMissedElsewhere(window)) &&
           (action != u"mnuAddCategory"_s || !differs(window));
}

bool leavesEmptyRow(const QWidget& widget)
{
    return nameBeyond(widget) == u"AddItemButtonLbl"_s;
}
