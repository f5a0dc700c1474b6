#include "Day.h"

#include "WatchedClock.h"
#include "monkey/Dice.h"
#include "monkey/Gestures.h"
#include "shell/CatalogueTree.h"
#include "shell/ShortcartButton.h"
#include "support/WindowTest.h"

#include <QAction>
#include <QLineEdit>
#include <QPlainTextEdit>

#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

void tell(const char* what, int number)
{
    std::printf("%s %d\n", what, number);
    std::fflush(stdout);
}

class TellingErrors : public FatalErrorHandler
{
public:
    void fatalError(const RuntimeError& error) noexcept override
    {
        tell("failed", static_cast<int>(error.number()));
        std::_Exit(EXIT_FAILURE);
    }
};

// Says yes to everything, and hands out one list of products.
class WillingOwner : public UserPrompts
{
public:
    explicit WillingOwner(const QString& list) : m_list(list) {}

    void showMessage(const QString& /*title*/, const QString& /*text*/, PromptIcon /*icon*/) override {}
    bool askYesNo(const QString& /*title*/, const QString& text) override
    {
        wasOffered = wasOffered || text.startsWith(u"The program ended"_s);
        return true;
    }
    PromptAnswer askYesNoCancel(const QString& /*title*/, const QString& /*text*/) override
    {
        return PromptAnswer::Cancel;
    }
    std::optional<QString> askText(const QString& /*title*/, const QString& /*prompt*/) override
    {
        return std::nullopt;
    }
    QString chooseFile(const QString& /*folder*/, const QString& /*filter*/) override { return m_list; }
    std::optional<int> chooseColour(int /*colour*/) override { return std::nullopt; }

    bool wasOffered = false;

private:
    QString m_list;
};

class Program
{
public:
    explicit Program(const QString& folder) : owner(folder + u"/list.txt"_s)
    {
        const ProgramServices services{ApplicationFolder(folder), owner, clock, m_errors, [] {}};
        window = guarded(m_errors, [&] {
            return startProgram(services, [](QWidget* parent) {
                auto* preview = new RecordingPreview(parent);
                return PreviewParts{preview, preview,
                                    [preview](PreviewNavigation* navigation) { preview->navigation = navigation; }};
            });
        });
        letBePainted(*window);
    }

    // The number of the last piece of work that is in the shop.
    int number() const
    {
        const QString& text = window->session().shop->Description;
        return text.startsWith(u"Day "_s) ? text.mid(4).toInt() : 0;
    }

    WillingOwner owner;
    WatchedClock clock;
    std::unique_ptr<MainForm> window;

private:
    TellingErrors m_errors;
};

class Day
{
public:
    Day(Program& program, int first, std::uint32_t seed)
        : m_program(program), m_window(*program.window), m_dice(seed), m_number(first)
    {
        m_program.clock.take();
    }

    void work()
    {
        m_kept = m_program.number(); // what was opened is on the disk
        while (true) {
            const int what = m_dice.below(100);
            if (what < 35) {
                renameProduct();
            } else if (what < 50) {
                addProduct();
            } else if (what < 60) {
                removeProduct();
            } else if (what < 65) {
                addAndRemoveCategory();
            } else if (what < 70) {
                importList();
            } else if (what < 80) {
                walkTheDesign();
            } else {
                look();
            }
            finishPiece();
            if (m_dice.chance(15)) {
                save();
            }
        }
    }

private:
    // Any of the presses that may bring the unsaved shop up to date.
    void after(const std::function<void()>& press)
    {
        press();
        switch (m_program.clock.take()) {
        case WatchedClock::Looks::Some:
            keep();
            break;
        case WatchedClock::Looks::None:
            break;
        case WatchedClock::Looks::LeftOutOneThatWasDue:
            tell("late", m_program.number());
            break;
        }
    }
    void keep()
    {
        if (m_program.number() != m_kept) {
            m_kept = m_program.number();
            tell("kept", m_kept);
        }
    }

    template <class T = QWidget>
    T& find(const char* name)
    {
        return *m_window.findChild<T*>(QLatin1String(name));
    }
    void click(const char* button)
    {
        after([&] {
            auto& picture = *find<ShortcartButton>(button).findChild<QLabel*>(u"IconImg"_s);
            pressAt(picture, picture.rect().center());
        });
    }
    void trigger(const char* action)
    {
        after([&] { find<QAction>(action).trigger(); });
    }
    void type(const char* field, const QString& text) { find<QLineEdit>(field).setText(text); }
    void clickNode(const TreeNode& node)
    {
        CatalogueTree& tree = *m_window.parts().CategoriesAndProductsTree;
        for (TreeNode* above = node.parent; above; above = above->parent) {
            tree.expandNode(above);
        }
        const QModelIndex index = tree.nodes().indexOf(&node);
        tree.scrollTo(index);
        after([&] { pressAt(*tree.viewport(), tree.visualRect(index).center()); });
    }
    TreeNode& root() { return *m_window.parts().CategoriesAndProductsTree->nodes().rootNode(); }
    TreeNode& category() { return *m_dice.pick(root().children); }
    // The products and categories below a category, none of them when it is empty.
    TreeNode* product()
    {
        TreeNode& node = category();
        return node.children.empty() ? nullptr : m_dice.pick(node.children).get();
    }
    bool showsProduct() const { return std::holds_alternative<std::shared_ptr<ProductClass>>(m_window.ActiveObject); }
    QString anyName() { return u"Tea %1"_s.arg(m_dice.below(1000)); }

    void renameProduct()
    {
        if (TreeNode* node = product()) {
            clickNode(*node);
            if (showsProduct()) {
                type("ProductNameTxt", anyName());
                click("ProductDiscountSBtn");
            }
        }
    }
    void addProduct()
    {
        clickNode(category());
        click("NewProductSBtn");
        type("ProductNameTxt", anyName());
        trigger("mnuDuplicateProduct");
    }
    void removeProduct()
    {
        if (TreeNode* node = product()) {
            clickNode(*node);
            if (showsProduct()) {
                click("RemoveProductSBtn");
            }
        }
    }
    void addAndRemoveCategory()
    {
        clickNode(root());
        click("ShopNewCategorySBtn");
        type("CategoryNameTxt", anyName());
        click("CategoryDiscountSBtn");
        trigger("mnuRemoveCategory");
    }
    void importList() { trigger("mnuImport"); }
    void walkTheDesign()
    {
        trigger("mnuShopDesign");
        click("HeaderDesignSBtn");
        click("MenuDesignSBtn");
        trigger("mnuProductsCatalog");
    }
    void look()
    {
        trigger("mnuShopPreview");
        trigger("mnuProductsCatalog");
    }

    // Writes the number into the shop and leaves the panel.
    void finishPiece()
    {
        clickNode(root());
        auto& description = find<QPlainTextEdit>("ShopDescriptionTxt");
        description.selectAll();
        description.insertPlainText(u"Day %1"_s.arg(++m_number));
        click("ShopTaxesSBtn");
        tell("done", m_program.number());
    }
    void save()
    {
        tell("saving", m_program.number());
        trigger("mnuSaveShop");
        m_kept = m_program.number();
        tell("saved", m_kept);
    }

    Program& m_program;
    MainForm& m_window;
    Dice m_dice;
    int m_number;
    int m_kept = 0;
};

} // namespace

int workAllDay(const QString& folder, int first, std::uint32_t seed)
{
    Program program(folder);
    Day day(program, first, seed);
    tell("ready", program.number());
    day.work();
    return EXIT_SUCCESS;
}

int openShop(const QString& folder)
{
    const Program program(folder);
    tell(program.owner.wasOffered ? "offered" : "not offered", 0);
    if (!program.window->parts().CategoriesAndProductsTree->nodes().rootNode()) {
        tell("failed", 0);
        return EXIT_FAILURE;
    }
    tell("opened", program.number());
    return EXIT_SUCCESS;
}
