// A panel without fields: a heading and the name of the object that it is bound to. It stands where a page of
// properties has no editor.
#pragma once

#include "editors/Panel.h"

#include <QLabel>

class BarePanel : public Panel
{
    Q_OBJECT

public:
    BarePanel(const QString& heading, QWidget* parent);

    void SetActiveObject(const CatalogueObject& object) override;
    void SaveActiveObject() override {}
    void ClearActiveObject() override;

private:
    QLabel* m_objectName;
};
