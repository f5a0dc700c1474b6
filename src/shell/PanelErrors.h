// Stands between the window's parts and the program's handler of fatal errors, and tells it which panel was open and
// for which object. The window owns one.
#pragma once

#include "base/Guarded.h"
#include "model/ObjectsCollection.h"

class Panel;

class PanelErrors : public FatalErrorHandler
{
public:
    explicit PanelErrors(FatalErrorHandler& program) : m_program(program) {}

    void fatalError(const RuntimeError& error) noexcept override;

    // From now on this panel is open, bound to that object; none when the place of the panels is empty.
    void setOpenPanel(const Panel* panel, const CatalogueObject& object);

private:
    FatalErrorHandler& m_program;
    const Panel* m_panel = nullptr;
    CatalogueObject m_object;
};
