// The modes of the window: what each of them shows, and the buttons that lead to them.
#include "editors/Panel.h"
#include "model/ShopSession.h"
#include "model/shop_file/UnsavedShop.h"
#include "shell/BottomLine.h"
#include "shell/MainForm.h"
#include "shell/PanelSet.h"
#include "shell/ShortcartButton.h"
#include "shell/TreePane.h"

using namespace Qt::StringLiterals;

void MainForm::SetMode(qint16 mode)
{
    if (mode >= CatalogueMode && mode <= DesignMode) {
        ShowCataloguePane(mode == CatalogueMode);
        ShowPreviewPane(mode == PreviewMode);
        ShowDesignPane(mode == DesignMode);
        for (int other = CatalogueMode; other <= DesignMode; ++other) {
            m_modeActions[static_cast<std::size_t>(other - 1)]->setChecked(other == mode);
        }
    }
    WorkMode = mode;
    markCurrentButtons();
    m_session->log.WriteLoadLog(u"End Sub SetMode"_s);
}

// The button of the mode, and the one that leads to the panel on screen.
void MainForm::markCurrentButtons()
{
    const std::pair<ButtonName, qint16> modeButtons[] = {{ButtonName::ProductCatalogSBtn, CatalogueMode},
                                                         {ButtonName::ShopDesignSBtn, DesignMode},
                                                         {ButtonName::PreviewBrowserSBtn, PreviewMode}};
    for (const auto& [name, mode] : modeButtons) {
        button(name)->setCurrent(WorkMode == mode);
    }
    for (const ButtonRow& row : buttonTable()) {
        if (row.frame != ButtonFrame::ToolbarFrame && row.code == PanelCode::Show) {
            ShortcartButton* shortcart = button(row.name);
            shortcart->setCurrent(VisibleFrame && shortcart->ShortCartFrameToActivate == VisibleFrame);
        }
    }
}

void MainForm::ShowCataloguePane(bool flag)
{
    m_parts->treePane->showTree(flag);
    panel(PanelName::ShopGeneralPnl)->setVisible(flag);
    m_parts->imgSplitter->setVisible(flag);
    m_parts->ContextToolbarFrame->setVisible(flag);
    m_parts->MainFrame->setVisible(flag);
}

void MainForm::ShowPreviewPane(bool flag)
{
    m_parts->PreviewBrowser->setVisible(flag);
    m_parts->frmCopyright->showPageWidths(flag);
}

void MainForm::ShowDesignPane(bool flag)
{
    m_parts->designPane->setVisible(flag);
    m_parts->ShopDesignFrame->setVisible(flag);
    m_parts->ShopDesignMenuFrame->setVisible(flag);
    panel(PanelName::MainPagePnl)->setVisible(true); // deliberately, whatever the flag
}

void MainForm::saveShopHandler()
{
    button(ButtonName::SaveShopSBtn)->Code = PanelCode::GatherOnly;
    changeFrame(VisibleFrame, PanelCode::GatherOnly);
    m_unsaved->keepAheadOfSave();
    SaveShop();
}

void MainForm::productCatalogHandler()
{
    button(ButtonName::SaveShopSBtn)->Code = PanelCode::GatherOnly;
    SetMode(CatalogueMode);
    ShowToolbar(m_parts->ShopToolbar);
    // The tree's selected node stays as it is, so panel and node may differ until the next click on a node.
    ActiveObject = m_session->shop;
    ShopDefaultButton->Activate();
}

void MainForm::shopDesignHandler()
{
    button(ButtonName::PreviewBrowserSBtn)->Code = PanelCode::GatherOnly;
    ShowFrame(panel(PanelName::MainPagePnl), PanelCode::Show);
    ShowDesignPane(true);
    SetMode(DesignMode);
}

void MainForm::previewHandler()
{
    button(ButtonName::PreviewBrowserSBtn)->Code = PanelCode::GatherOnly;
    ShowFrame(nullptr, PanelCode::GatherOnly);
    SetMode(PreviewMode);
    m_navigation->openPreview();
}
