// The line at the tree's foot that finds categories and products by a part of their name, and products by a part of
// their code, whatever the case. It counts while one types; Enter goes to the next hit as a click on it would, Esc
// closes the line. The tree's pane owns it.
#pragma once

#include "base/Guarded.h"
#include "editors/CatalogueTreeModel.h"

#include <QWidget>

#include <functional>
#include <vector>

class CatalogueTree;
class QLabel;
class QLineEdit;
class QStringMatcher;

class FindLine : public QWidget
{
    Q_OBJECT

public:
    // The code of the product with that node key; an empty text for all other nodes. It may be asked for any key that
    // the tree has.
    using CodeOf = std::function<QString(const QString& key)>;

    // Starts closed. The tree and the error handler outlive it.
    FindLine(CatalogueTree& tree, CodeOf codeOf, FatalErrorHandler& errors, QWidget* parent);

    // Shows the line, and gives it the focus with its text selected.
    void ask();
    // Hides it, and gives the focus to the tree.
    void dismiss();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    // What the text finds, in the tree's order; nothing for an empty one. The shop's own node is never found.
    struct Hits
    {
        std::vector<TreeNode*> nodes;
        std::size_t above = 0; // how many of them stand above the current row
        bool hasCurrent = false;
    };
    Hits hits() const;
    void collect(const TreeNode& above, const QStringMatcher& matcher, const TreeNode* current, Hits& hits) const;
    void goOn(bool forward);
    void count();

    CatalogueTree& m_tree;
    CodeOf m_codeOf;
    QLineEdit* m_text;
    QLabel* m_count;
};
