// The window over a large catalogue, without a screen.
//
// The tree of 100,000 products, filled, shown with the root expanded and painted, against a QTreeWidget whose items are
// built first and added at once, with the same texts, keys, pictures and colours. A peer without the colours is shown
// and not judged, and so is what the window does beside the tree when it opens a catalogue.
//
// The import of 100,000 lines into the window, model and tree, with 1,000 categories at three levels, against a bare
// byte-wise split of the same lines into three QStrings; and against the import of 10,000 lines, per line.
#include "EmptyProgram.h"
#include "Measuring.h"
#include "Ratios.h"
#include "base/FileBytes.h"
#include "editors/EditorIcon.h"
#include "look/TreeLook.h"
#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTreeWidget>

#include <array>
#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>
#include <limits>
#include <malloc.h>

using namespace Qt::StringLiterals;

namespace {

constexpr int categoryCount = 100;
constexpr int productsEach = 1'000;

// ---- The tree ----

QByteArray catalogueText()
{
    QByteArray text;
    for (int i = 0; i < categoryCount * productsEach; ++i) {
        text += "Product number " + QByteArray::number(i) + ",,Category " + QByteArray::number(i / productsEach) + "\n";
    }
    return text;
}

// Knows when a widget has been painted.
class PaintWatch : public QObject
{
public:
    explicit PaintWatch(QWidget* watched) { watched->installEventFilter(this); }

    void waitForPaint()
    {
        for (m_painted = false; !m_painted;) {
            QCoreApplication::processEvents();
        }
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override
    {
        m_painted = m_painted || event->type() == QEvent::Paint;
        return false;
    }

private:
    bool m_painted = false;
};

// The empty trees are on the screen before the clock runs, and are taken apart after it has stopped.
void openOurTree(benchmark::State& state, const ShopClass& shop)
{
    GiveUpOnErrors errors;
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto tree = std::make_unique<CatalogueTree>(errors, nullptr);
        tree->resize(280, 600);
        tree->show();
        PaintWatch watch(tree->viewport());
        watch.waitForPaint();
        state.ResumeTiming();

        CatalogueTreeModel& nodes = tree->nodes();
        nodes.beginBuild();
        TreeNode* root = nodes.addNode(nullptr, shopNodeKey(), shop.name, TreeImage::Closed);
        tree->ColorDeSelectedNode(root);
        for (const auto& category : shop.categories) {
            TreeNode* node = nodes.addNode(root, nodeKey(category->id), category->name, TreeImage::Closed);
            tree->ColorDeSelectedNode(node);
            for (const auto& product : category->products) {
                tree->ColorDeSelectedNode(nodes.addNode(node, nodeKey(product->id), product->name, TreeImage::Product));
            }
        }
        nodes.endBuild();
        tree->expandNode(root);
        tree->selectNode(root);
        watch.waitForPaint();

        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
}

// With the colours that the window gives each of its nodes, or without.
enum class Colours { Own, Widget };

void openTreeWidget(benchmark::State& state, const ShopClass& shop, Colours colours)
{
    const std::array<QIcon, 2> pictures{editorIcon("tree_closed"), editorIcon("tree_product")};
    const QBrush background(QColor::fromRgb(TreeColour));
    const QBrush foreground(QColor::fromRgb(TreeTextColour));
    const auto newItem = [&](QTreeWidgetItem* parent, const QString& text, const QString& key, const QIcon& picture) {
        auto* item = parent ? new QTreeWidgetItem(parent) : new QTreeWidgetItem;
        item->setText(0, text);
        item->setIcon(0, picture);
        item->setData(0, Qt::UserRole, key);
        if (colours == Colours::Own) {
            item->setBackground(0, background);
            item->setForeground(0, foreground);
        }
        return item;
    };
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto tree = std::make_unique<QTreeWidget>();
        tree->setHeaderHidden(true);
        tree->setUniformRowHeights(true);
        tree->setIconSize(QSize(20, 20));
        tree->resize(280, 600);
        tree->show();
        PaintWatch watch(tree->viewport());
        watch.waitForPaint();
        state.ResumeTiming();

        QTreeWidgetItem* root = newItem(nullptr, shop.name, shopNodeKey(), pictures[0]);
        for (const auto& category : shop.categories) {
            QTreeWidgetItem* node = newItem(root, category->name, nodeKey(category->id), pictures[0]);
            for (const auto& product : category->products) {
                newItem(node, product->name, nodeKey(product->id), pictures[1]);
            }
        }
        tree->addTopLevelItem(root);
        root->setExpanded(true);
        tree->setCurrentItem(root);
        watch.waitForPaint();

        state.PauseTiming();
        tree.reset();
        state.ResumeTiming();
    }
}

// The same by the window, which enters every object in its collection and goes to the shop's panel.
void openCatalogue(benchmark::State& state, EmptyProgram& program)
{
    CatalogueTree& tree = *program.window->parts().CategoriesAndProductsTree;
    PaintWatch watch(tree.viewport());
    while (state.KeepRunning()) {
        state.PauseTiming();
        tree.nodes().beginBuild();
        tree.nodes().endBuild();
        program.window->session().objects.create();
        QCoreApplication::processEvents();
        state.ResumeTiming();
        program.window->AddShopToTheTree();
        watch.waitForPaint();
    }
}

// ---- Import ----

QByteArray importText(int lines)
{
    QByteArray text;
    for (int i = 0; i < lines; ++i) {
        const int category = i % 1'000;
        text += "Espresso cup number " + QByteArray::number(i) +
                ",\"Stoneware, fired twice, holds 80 ml and keeps them warm\",Cups\\Shelf " +
                QByteArray::number(category / 100) + "\\Row " + QByteArray::number(category % 100) + "\n";
    }
    return text;
}

void importLines(benchmark::State& state, const QString& file, int lines)
{
    while (state.KeepRunning()) {
        state.PauseTiming();
        auto program = std::make_unique<EmptyProgram>();
        state.ResumeTiming();
        program->import(file);
        state.PauseTiming();
        if (program->nodeCount() != 1 + 1 + 10 + 1'000 + lines) {
            giveUp(u"Not all lines were imported"_s);
        }
        program.reset();
        state.ResumeTiming();
    }
}

// Commas between quotes belong to the field; nothing else is looked at.
void splitLines(benchmark::State& state, const QString& file)
{
    while (state.KeepRunning()) {
        const QByteArray bytes = readFileBytes(file);
        std::array<QString, 3> fields;
        for (const char* at = bytes.cbegin(); at != bytes.cend(); ++at) {
            for (QString& field : fields) {
                const char* const start = at;
                for (bool quoted = false; *at != '\n' && (quoted || *at != ','); ++at) {
                    quoted ^= *at == '"';
                }
                field = QString::fromUtf8(start, at - start);
                at += *at == ',' ? 1 : 0;
            }
            benchmark::DoNotOptimize(fields.data());
        }
    }
}

template <class Work>
void registerRun(const std::string& name, Work work)
{
    benchmark::RegisterBenchmark(name.c_str(), work)->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    mallopt(M_MMAP_THRESHOLD, 1 << 30);
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    EmptyProgram program;
    writeFileBytes(folder.filePath(u"catalogue.txt"_s), catalogueText());
    program.import(folder.filePath(u"catalogue.txt"_s));
    if (program.nodeCount() != 1 + categoryCount * (1 + productsEach)) {
        giveUp(u"The catalogue was not read"_s);
    }
    const QString small = folder.filePath(u"small.txt"_s);
    const QString large = folder.filePath(u"large.txt"_s);
    writeFileBytes(small, importText(10'000));
    writeFileBytes(large, importText(100'000));

    const ShopClass& shop = *program.window->session().shop;
    registerRun("open the tree", [&](benchmark::State& state) { openOurTree(state, shop); });
    registerRun("open the tree and the catalogue", [&](benchmark::State& state) { openCatalogue(state, program); });
    registerRun("open a QTreeWidget", [&](benchmark::State& state) { openTreeWidget(state, shop, Colours::Own); });
    registerRun("open a plain QTreeWidget",
                [&](benchmark::State& state) { openTreeWidget(state, shop, Colours::Widget); });
    registerRun("import 10,000 lines", [&](benchmark::State& state) { importLines(state, small, 10'000); });
    registerRun("import 100,000 lines", [&](benchmark::State& state) { importLines(state, large, 100'000); });
    registerRun("split 100,000 lines", [&](benchmark::State& state) { splitLines(state, large); });
    return runAndCompare(
        argc, argv,
        {{"tree of 100,000 products", "open the tree", "open a QTreeWidget", 1 / 0.3},
         {"  peer without colours", "open the tree", "open a plain QTreeWidget", 0},
         {"  the window's whole catalogue", "open the tree and the catalogue", "open a QTreeWidget", 0},
         {"import, 100,000 lines (a tenth is enough)", "import 100,000 lines", "split 100,000 lines", 0.1},
         {"import, 10,000 of 100,000 lines (1 : 15)", "import 100,000 lines", "import 10,000 lines", 0.1 / 1.5}});
}
