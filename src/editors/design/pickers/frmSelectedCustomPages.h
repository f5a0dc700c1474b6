// The dialog around ucSelectCustPage. A manager owns one and shows it on one selection after another; after each use
// the control is back in the mode of several choices.
#pragma once

#include "base/KeyedCollection.h"

#include <QDialog>

#include <memory>

class CustomPageClass;
class PanelHost;
class clsSelectedCustomPages;
class ucSelectCustPage;

class frmSelectedCustomPages : public QDialog
{
    Q_OBJECT

public:
    // The host must outlive it.
    frmSelectedCustomPages(PanelHost& host, QWidget* parent);

    ucSelectCustPage* const pagesControl;

    // CancelBtn, Esc and the window's own close button.
    void reject() override;
};

// Shows the dialog on that selection, modal over its window; its finished signal tells the end. For one choice, the
// control's SetMultiSelect(false) comes first.
void ShowCustomPagesDialog(frmSelectedCustomPages& form, const std::shared_ptr<clsSelectedCustomPages>& selection,
                           const KeyedCollection<std::shared_ptr<CustomPageClass>>& pages);
