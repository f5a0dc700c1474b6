// The tree, and the three frames behind it that draw its shadow. The tree itself is never narrower than 1500 twips.
// A line may stand at its foot.
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
    // Takes over a line for which the tree makes room at its lower edge while the line is shown.
    void setFoot(QWidget* foot);

    bool eventFilter(QObject* watched, QEvent* event) override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void arrange();
    void colourShadow();

    QWidget* m_tree;
    QWidget* m_foot = nullptr;
    QFrame* frmTreeShadowWhite;
    QFrame* frmTreeShadowGray;
    QFrame* frmTreeShadowDarkGray;
};
