#include "shell/ImportIntoTree.h"

#include "shell/CatalogueTree.h"
#include "shell/MainForm.h"
#include "shell/ProgressFrames.h"

#include <QCoreApplication>

namespace {

constexpr qint64 quietTime = 1000; // milliseconds before the first report of progress

} // namespace

ImportIntoTree::ImportIntoTree(MainForm& window) : m_window(window), m_formerCallbacks(window.session().callbacks)
{
    CatalogueTreeModel& tree = m_window.parts().CategoriesAndProductsTree->nodes();
    if (tree.rootNode()) {
        collect(tree.rootNode());
    }
    // A category whose node has gone with another one's has no place in the tree for what is imported into it.
    SessionCallbacks& callbacks = m_window.session().callbacks;
    callbacks.AddCategoryToTheTree = [this](const std::shared_ptr<CategoryClass>& parent,
                                            const std::shared_ptr<CategoryClass>& category) {
        if (TreeNode* above = nodeOf(parent.get())) {
            m_nodes.insert(category.get(), m_window.AddCategoryToTheTree(above, category));
        }
    };
    callbacks.AddProductToTheTree = [this](const std::shared_ptr<CategoryClass>& category,
                                           const std::shared_ptr<ProductClass>& product) {
        if (TreeNode* above = nodeOf(category.get())) {
            m_window.AddProductToTheTree(above, product);
        }
    };
    tree.beginAppending();
    m_time.start();
}

ImportIntoTree::~ImportIntoTree()
{
    m_window.session().callbacks = m_formerCallbacks;
    m_window.parts().ImportProgressFrame->hide();
    m_window.parts().CategoriesAndProductsTree->nodes().endAppending();
}

void ImportIntoTree::collect(TreeNode* node)
{
    // A product's node has children when a category was added while panel and node differed.
    const CatalogueObject& object = m_window.session().objects.Item(node->key);
    if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object)) {
        m_nodes.insert(category->get(), node);
    } else if (std::holds_alternative<std::shared_ptr<ShopClass>>(object)) {
        m_nodes.insert(nullptr, node);
    }
    for (const auto& child : node->children) {
        collect(child.get());
    }
}

clsImporter::Progress ImportIntoTree::progress()
{
    return [this](qsizetype done, qsizetype total) {
        if (m_time.elapsed() < quietTime) {
            return;
        }
        m_window.parts().ImportProgressFrame->report(static_cast<int>(100 * done / total));
        // Nothing may touch the catalogue while it grows, so no input gets through.
        QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
    };
}
