// One import, seen from the window: while it lives, what the model makes goes into the tree, which is filled in one go
// at the end, and a frame tells how far the import is once it takes longer than a second.
#pragma once

#include "model/clsImporter.h"

#include <QElapsedTimer>
#include <QHash>

class MainForm;
class ImportFrame;
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
    // Of the shop, for none.
    TreeNode* nodeOf(const CategoryClass* category) const { return m_nodes.value(category); }
    void collect(TreeNode* node);

    MainForm& m_window;
    SessionCallbacks m_formerCallbacks;
    QHash<const CategoryClass*, TreeNode*> m_nodes;
    QElapsedTimer m_time;
};
