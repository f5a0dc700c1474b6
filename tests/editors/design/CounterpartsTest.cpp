// Each row of the tables of pages and of image slots has what edits it: a manager with a panel and a button, a picker.
#include "DesignTest.h"
#include "design/PageTable.h"
#include "editors/design/ManagerTables.h"
#include "editors/design/PageManager.h"
#include "shell/ShortcartButton.h"

#include <algorithm>
#include <map>

using namespace Qt::StringLiterals;

namespace {

using Counterparts = DesignTest;

TEST_F(Counterparts, EveryPageWithAnAdvancedOptionHasItsManagerOnePanelAndOneButtonToIt)
{
    openDesign();
    const QList<PageManager*> panels = window->findChildren<PageManager*>();
    const auto buttons = window->parts().buttons;
    for (const PageRow& row : pageTable()) {
        SCOPED_TRACE(row.name.data());
        const auto isItsPanel = [&](const PageManager* panel) { return panel->page() == row.page; };
        // The main toolbar's button to the design leads to the main page, too.
        const auto isItsButton = [&](const ShortcartButton* button) {
            const auto* panel = qobject_cast<const PageManager*>(button->ShortCartFrameToActivate);
            return panel != nullptr && isItsPanel(panel) && button->objectName() != u"ShopDesignSBtn"_s;
        };
        const int expected = row.advanced ? 1 : 0;
        EXPECT_EQ(std::count_if(panels.begin(), panels.end(), isItsPanel), expected);
        EXPECT_EQ(std::count_if(buttons.begin(), buttons.end(), isItsButton), expected);
        if (row.advanced) {
            EXPECT_EQ(managerTable(row.page).page, row.page);
        } else {
            EXPECT_EQ(errorOf([&] { managerTable(row.page); }), 5);
        }
    }
}

TEST_F(Counterparts, EveryOptionHasOneControlAndEveryAdvancedOneItsCheckBox)
{
    std::map<DesignOption, int> controls;
    for (const PageRow& row : pageTable()) {
        if (!row.advanced) {
            continue;
        }
        ++controls[*row.advanced];
        for (const OptionGroup& group : managerTable(row.page).groups) {
            for (const SwitchRow& box : group.switches) {
                ++controls[box.option];
            }
            for (const TextRow& text : group.texts) {
                ++controls[text.option];
            }
        }
    }
    for (const DesignOptionRow& option : designOptionTable()) {
        EXPECT_EQ(controls[option.option], 1) << option.element;
    }
}

TEST_F(Counterparts, EveryImageSlotHasOnePicker)
{
    for (const ImageSlotRow& slot : imageSlotTable()) {
        int pickers = 0;
        for (const PageRow& row : pageTable()) {
            if (row.advanced) {
                const auto pickerRows = managerTable(row.page).imageSlots;
                pickers +=
                    static_cast<int>(std::count_if(pickerRows.begin(), pickerRows.end(),
                                                   [&](const SlotRow& picker) { return picker.slot == slot.slot; }));
            }
        }
        EXPECT_EQ(pickers, 1) << slot.tag.data();
    }
}

} // namespace
