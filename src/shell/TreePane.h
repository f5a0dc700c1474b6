// The tree, and the three frames behind it that draw its shadow. The tree itself is never narrower than 1500 twips.
#pragma once

#include <QWidget>

class QFrame;

class TreePane : public QWidget
{
    Q_OBJECT

public:
    TreePane(QWidget* tree, QWidget* parent);

    // Shows or hides the tree and its shadow.
    void showTree(bool flag);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void colourShadow();

    QWidget* m_tree;
    QFrame* frmTreeShadowWhite;
    QFrame* frmTreeShadowGray;
    QFrame* frmTreeShadowDarkGray;
};
