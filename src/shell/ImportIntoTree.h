// One import, as the window sees it. While it lives, what the model makes goes into the tree, which the view shows in
// one go at the end. Once the import takes longer than a second, a frame shows how far it is.
#pragma once

#include "model/clsImporter.h"

#include <QElapsedTimer>
#include <QHash>

class MainForm;
struct TreeNode;

class ImportIntoTree
{
public:
    explicit ImportIntoTree(MainForm& window);
    ImportIntoTree(const ImportIntoTree&) = delete;
    ImportIntoTree& operator=(const ImportIntoTree&) = delete;
    ~ImportIntoTree();

    clsImporter::Progress progress();

private:
    // The node of the category, of the shop for nullptr; none when the tree does not show it.
    TreeNode* nodeOf(const CategoryClass* category) const { return m_nodes.value(category); }
    void collect(TreeNode* node);

    MainForm& m_window;
    SessionCallbacks m_formerCallbacks;
    QHash<const CategoryClass*, TreeNode*> m_nodes;
    QElapsedTimer m_time;
};
