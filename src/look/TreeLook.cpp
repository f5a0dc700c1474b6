#include "look/TreeLook.h"

#include "look/Tones.h"

#include <QTreeView>

void dressTree(QTreeView& tree)
{
    QPalette colours = tree.palette();
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::WindowText, QPalette::HighlightedText}) {
        colours.setColor(role, tone(Tone::TreeText));
    }
    colours.setColor(QPalette::Highlight, tone(Tone::TreeSelected));
    colours.setColor(QPalette::AlternateBase, tone(Tone::TreeHover));
    tree.setPalette(colours);
    tree.setAllColumnsShowFocus(true);
    tree.setIconSize(QSize(20, 20));
}

void setTreeGround(QTreeView& tree)
{
    QPalette colours = tree.palette();
    colours.setColor(QPalette::Base, tone(Tone::TreeGround));
    tree.setPalette(colours);
}
