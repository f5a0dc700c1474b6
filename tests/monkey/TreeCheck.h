// Holds the tree against the catalogue, step after step: the selected node, the object behind each node, the order of
// the nodes, and their texts.
#pragma once

#include <QObject>
#include <QSet>
#include <QString>

class MainForm;
struct TreeNode;

class TreeCheck
{
public:
    // Takes the tree as it is after the start for the shop's own. The window outlives the check.
    explicit TreeCheck(MainForm& window);

    // What is out of step now, in words; empty when nothing is. To be called between two steps.
    QString disagreement() const;

private:
    QString ofSelection() const;
    QString ofNode(const TreeNode& node) const;
    QString ofText(const TreeNode& node, const QString& name) const;
    QString ofChildren(const TreeNode& node) const;

    MainForm& m_window;
    QSet<QString> m_loaded; // keys of the nodes that were there at the start
    QSet<QString> m_typed;  // every text that was typed as a name
    QObject m_listener;
};
