// The contract of everything that stands on the right side of the window: it is bound to an object, shows it, writes it
// back, and is unbound. A panel writes to the object that it was bound to, whatever the window holds as active by then,
// and saving twice in a row changes nothing. The window owns all panels.
#pragma once

#include "model/ObjectsCollection.h"

#include <QFrame>

class Panel : public QFrame
{
    Q_OBJECT

public:
    using QFrame::QFrame;

    // Fills the controls from the object and remembers it.
    virtual void SetActiveObject(const CatalogueObject& object) = 0;
    // Writes the controls to the remembered object; does nothing when there is none.
    virtual void SaveActiveObject() = 0;
    // Forgets the object.
    virtual void ClearActiveObject() = 0;

    // Gives the focus to the object's name with all of it selected, in a panel that has a field for it.
    virtual void selectName() {}
};
