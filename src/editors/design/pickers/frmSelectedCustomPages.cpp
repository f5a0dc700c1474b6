#include "editors/design/pickers/frmSelectedCustomPages.h"

#include "editors/PanelHost.h"
#include "editors/design/pickers/DialogButtons.h"
#include "editors/design/pickers/ucSelectCustPage.h"
#include "look/Measures.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

frmSelectedCustomPages::frmSelectedCustomPages(PanelHost& host, QWidget* parent)
    : QDialog(parent), pagesControl(new ucSelectCustPage(this))
{
    setObjectName(u"frmSelectedCustomPages"_s);
    setWindowTitle(u"Select pages"_s);
    pagesControl->setObjectName(u"ucSelectCustPage"_s);
    const DialogButtons buttons = makeDialogButtons(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Measure::DialogMargin, Measure::DialogMargin, Measure::DialogMargin,
                               Measure::DialogMargin);
    column->setSpacing(Measure::Section);
    column->addWidget(pagesControl, 1);
    column->addLayout(buttons.row);
    resize(380, 420);

    connectGuarded(host.errorHandler(), buttons.OkBtn, &QPushButton::clicked, this, [this] {
        pagesControl->SetMultiSelect(true);
        pagesControl->SaveActiveObject();
        accept();
    });
    connect(buttons.CancelBtn, &QPushButton::clicked, this, &QDialog::reject);
}

void frmSelectedCustomPages::reject()
{
    pagesControl->SetMultiSelect(true);
    QDialog::reject();
}

void ShowCustomPagesDialog(frmSelectedCustomPages& form, const std::shared_ptr<clsSelectedCustomPages>& selection,
                           const KeyedCollection<std::shared_ptr<CustomPageClass>>& pages)
{
    form.pagesControl->SetActiveObject(selection, pages);
    form.open();
}
