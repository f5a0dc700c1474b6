// How long the panel of related products takes to open over a catalogue of 100,000 products, all of them related,
// beside the window's own tree over the same catalogue. It may take twice as long.
#include "LonePanelHost.h"
#include "Measuring.h"
#include "NoPrompts.h"
#include "Ratios.h"
#include "base/Clock.h"
#include "editors/catalogue/ProductsRelatedPanel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopSession.h"
#include "shell/CatalogueTree.h"

#include <QApplication>
#include <QListView>
#include <QTemporaryDir>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <cstdlib>

using namespace Qt::StringLiterals;

namespace {

constexpr int categoryCount = 100;
constexpr int productsEach = 1000;

// The catalogue, with the first product's list of related ones filled with all others.
std::shared_ptr<ProductClass> fillShop(ShopSession& session)
{
    session.shop = std::make_shared<ShopClass>(session.services);
    session.shop->name = u"Fern"_s;
    QStringList ids;
    int id = 1;
    for (int i = 0; i < categoryCount; ++i) {
        auto category = std::make_shared<CategoryClass>(session.services);
        category->id = QString::number(++id);
        category->name = u"Category %1"_s.arg(i);
        for (int j = 0; j < productsEach; ++j) {
            auto product = std::make_shared<ProductClass>(session.services);
            product->id = QString::number(++id);
            product->name = u"Product number %1"_s.arg(id);
            ids << product->id;
            category->products.Add(product, nodeKey(product->id));
        }
        session.shop->categories.Add(category, nodeKey(category->id));
    }
    std::shared_ptr<ProductClass> first = session.shop->categories.Item(1)->products.Item(1);
    first->setRelatedIds(ids.mid(1));
    return first;
}

// What the window does to show the catalogue, from an empty tree.
void openMainTree(ShopSession& session, CatalogueTree& tree)
{
    CatalogueTreeModel& nodes = tree.nodes();
    nodes.beginBuild();
    TreeNode* root = nodes.addNode(nullptr, shopNodeKey(), session.shop->name, TreeImage::Closed);
    session.objects.Add(session.shop, shopNodeKey());
    for (const std::shared_ptr<CategoryClass>& category : session.shop->categories) {
        TreeNode* node = nodes.addNode(root, nodeKey(category->id), category->name, TreeImage::Closed);
        tree.ColorDeSelectedNode(node);
        session.objects.Add(category, node->key);
        for (const std::shared_ptr<ProductClass>& product : category->products) {
            TreeNode* leaf = nodes.addNode(node, nodeKey(product->id), product->name, TreeImage::Product);
            tree.ColorDeSelectedNode(leaf);
            session.objects.Add(product, leaf->key);
        }
    }
    nodes.endBuild();
    tree.expandNode(root);
    tree.selectNode(root);
    QCoreApplication::processEvents();
}

void clearMainTree(ShopSession& session, CatalogueTree& tree)
{
    session.objects.create();
    tree.nodes().beginBuild();
    tree.nodes().endBuild();
    QCoreApplication::processEvents();
}

// What was opened before is cleared outside of the time that counts.
template <class Prepare, class Work>
void registerRun(const char* name, Prepare prepare, Work work)
{
    benchmark::RegisterBenchmark(name, [prepare, work](benchmark::State& state) {
        while (state.KeepRunning()) {
            state.PauseTiming();
            prepare();
            state.ResumeTiming();
            work();
        }
    })->Unit(benchmark::kMillisecond);
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    NoPrompts prompts;
    const SystemClock clock;
    ShopSession session(ApplicationFolder(folder.path()), prompts, clock);
    const std::shared_ptr<ProductClass> product = fillShop(session);

    LonePanelHost host(session);
    CatalogueTree tree(host.errorHandler(), nullptr);
    tree.resize(280, 600);
    tree.show();
    clearMainTree(session, tree);
    openMainTree(session, tree);
    ProductsRelatedPanel panel(host, nullptr);
    panel.resize(800, 600);
    panel.show();
    const auto* related = panel.findChild<QListView*>(u"RelatedProductsLst"_s);
    QCoreApplication::processEvents();

    registerRun(
        "open the panel of related products",
        [&] {
            panel.ClearActiveObject();
            QCoreApplication::processEvents();
        },
        [&] {
            panel.SetActiveObject(product);
            QCoreApplication::processEvents();
            if (related->model()->rowCount() != categoryCount * productsEach - 1) {
                std::abort();
            }
        });
    registerRun(
        "open the window's tree", [&] { clearMainTree(session, tree); }, [&] { openMainTree(session, tree); });
    return runAndCompare(argc, argv,
                         {{"related products, 100,000 (half is enough)", "open the panel of related products",
                           "open the window's tree", 0.5}});
}
