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
    TreeNode* nodeOf(const QString& key) const { return m_nodes.value(key); }
    void collect(TreeNode* node);

    MainForm& m_window;
    SessionCallbacks m_formerCallbacks;
    QHash<QString, TreeNode*> m_nodes; // shop and categories, by key
    QElapsedTimer m_time;
};
