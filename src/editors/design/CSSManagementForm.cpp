#include "editors/design/CSSManagementForm.h"

#include "design/CSSClass.h"
#include "editors/PanelHost.h"
#include "editors/design/FontAndColorEditorPanel.h"
#include "editors/design/pickers/DialogButtons.h"
#include "look/Measures.h"
#include "model/ShopSession.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

CSSManagementForm::CSSManagementForm(PanelHost& host, QWidget* parent)
    : QDialog(parent), FontAndColorEditorPanel1(new FontAndColorEditorPanel(host, this))
{
    setObjectName(u"CSSManagementForm"_s);
    setAttribute(Qt::WA_DeleteOnClose);
    FontAndColorEditorPanel1->setObjectName(u"FontAndColorEditorPanel1"_s);
    const DialogButtons buttons = makeDialogButtons(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Measure::DialogMargin, Measure::DialogMargin, Measure::DialogMargin,
                               Measure::DialogMargin);
    column->setSpacing(Measure::Section);
    column->addWidget(FontAndColorEditorPanel1);
    column->addLayout(buttons.row);

    connectGuarded(host.errorHandler(), buttons.OkBtn, &QPushButton::clicked, this, [this] {
        FontAndColorEditorPanel1->SaveActiveObject(*m_style);
        accept();
    });
    connect(buttons.CancelBtn, &QPushButton::clicked, this, &QDialog::reject);
}

void CSSManagementForm::openOn(const std::shared_ptr<CSSClass>& style, const QString& title)
{
    m_style = style;
    FontAndColorEditorPanel1->SetActiveObject(*style);
    FontAndColorEditorPanel1->setObjectTitle(title);
    setWindowTitle(title);
    open();
}

std::shared_ptr<CSSClass> styleNamed(ShopClass& shop, const QString& styleName)
{
    const QString key = u"ID"_s + styleName;
    if (!shop.CSSs.hasKey(key)) {
        auto style = std::make_shared<CSSClass>();
        style->CSSName = styleName;
        shop.CSSs.Add(style, key);
    }
    return shop.CSSs.Item(key);
}

CSSManagementForm* OpenStyle(PanelHost& host, QWidget* parent, const QString& title, const QString& styleName)
{
    const std::shared_ptr<CSSClass> style = styleNamed(*host.session().shop, styleName);
    auto* form = new CSSManagementForm(host, parent->window());
    form->openOn(style, title);
    return form;
}
