#include "CarefulOwner.h"

#include "base/Dates.h"
#include "editors/DateField.h"
#include "editors/NumericBox.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"

#include <QWidget>

#include <algorithm>
#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array words = {"Tea", "Green leaves", "A cup for two", "Blue", "Harbour Road 5", "Sencha"};

// The active object is not that of the selected node.
bool differs(const MainForm& window)
{
    return window.SelectedNode && std::holds_alternative<std::shared_ptr<ShopClass>>(window.ActiveObject) &&
           window.SelectedNode->parent;
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

} // namespace

QString fittingText(Dice& dice, const QWidget& field)
{
    if (qobject_cast<const DateField*>(&field)) {
        return localDateText(QDate(2026, 1, 1).addDays(dice.below(400)));
    }
    // Numbers go into every column of a table, names included.
    if (qobject_cast<const NumericBox*>(&field) || field.objectName() == u"ForGridTxt"_s) {
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

bool mayPress(const QWidget& widget, const MainForm& window)
{
    constexpr std::array never = {"DeletePageBtn", "RemoveCategorySBtn", "InheritOpt", "AddItemButtonLbl"};
    constexpr std::array notWhileApart = {"ShopNewCategorySBtn", "NewCategorySBtn"};
    const QString name = nameBeyond(widget);
    const auto is = [&](const char* other) { return name == QLatin1String(other); };
    return std::none_of(never.begin(), never.end(), is) &&
           (!differs(window) || std::none_of(notWhileApart.begin(), notWhileApart.end(), is));
}

bool mayChoose(const QString& action, const MainForm& window)
{
    return action != u"mnuRemoveCategory"_s && (action != u"mnuAddCategory"_s || !differs(window));
}
