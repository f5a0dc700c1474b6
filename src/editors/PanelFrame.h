// What a panel stands in: a heading, groups of fields that scroll when the window is small, and the two buttons at the
// bottom right. It fills the panel, which owns it, and grows and shrinks with it.
#pragma once

#include "editors/PanelParts.h"

#include <QFrame>

class PanelHost;

class PanelFrame : public QFrame
{
    Q_OBJECT

public:
    // A group takes the height that it needs, or all that the others leave.
    enum class Height { Needed, Rest };

    PanelFrame(const QString& heading, QWidget* panel);

    // A group with a caption, below the groups before it: fields with their labels at the left, or a free column.
    QFormLayout* addForm(const QString& caption, Height height = Height::Needed);
    QVBoxLayout* addColumn(const QString& caption, Height height = Height::Needed);
    // The row of Submit and Reset.
    void addButtons(PanelHost& host);

private:
    void addGroup(QWidget* group, Height height);

    QVBoxLayout* m_groups;
    QVBoxLayout* m_whole;
    bool m_isFilled = false; // by a group that takes the rest
};
