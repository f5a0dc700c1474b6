#include "shell/PanelErrors.h"

#include "base/Circumstances.h"
#include "editors/Panel.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "shell/ButtonTable.h"

using namespace Qt::StringLiterals;

namespace {

// A panel goes by the title of the button beside or above it that leads to it.
const ButtonRow* rowOf(const Panel& panel)
{
    for (const ButtonRow& row : buttonTable()) {
        if (row.frame != ButtonFrame::ToolbarFrame && row.panel && row.code == PanelCode::Show &&
            objectNameOf(*row.panel) == panel.objectName()) {
            return &row;
        }
    }
    return nullptr;
}

// Behind a panel of the catalogue. The design is the shop's, whatever a panel is bound to.
QString ofObject(const CatalogueObject& object)
{
    if (const auto* category = std::get_if<std::shared_ptr<CategoryClass>>(&object); category && *category) {
        return u" of the category "_s + inQuotes((*category)->name);
    }
    if (const auto* product = std::get_if<std::shared_ptr<ProductClass>>(&object); product && *product) {
        return u" of the product "_s + inQuotes((*product)->name);
    }
    return u" of the shop"_s;
}

} // namespace

void PanelErrors::fatalError(const RuntimeError& error) noexcept
{
    RuntimeError told = error;
    if (m_panel) {
        if (const ButtonRow* row = rowOf(*m_panel)) {
            const bool isDesign = row->frame == ButtonFrame::ShopDesignMenuFrame;
            told.addCircumstance(u"The panel %1%2 was open."_s.arg(inQuotes(QString::fromLatin1(row->title)),
                                                                   isDesign ? QString() : ofObject(m_object)));
        }
    }
    m_program.fatalError(told);
}

void PanelErrors::setOpenPanel(const Panel* panel, const CatalogueObject& object)
{
    m_panel = panel;
    m_object = panel ? object : CatalogueObject();
}
