#include "editors/design/pickers/ucSelectImage.h"

#include "editors/PanelHost.h"
#include "editors/design/pickers/DialogButtons.h"
#include "editors/design/pickers/PictureGrid.h"
#include "editors/design/pickers/PicturesList.h"
#include "look/Measures.h"
#include "model/ShopSession.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucSelectImage::ucSelectImage(PanelHost& host, QWidget* parent)
    : QWidget(parent), m_host(host), m_pictures(new PicturesList(host, this))
{
    const DialogButtons buttons = makeDialogButtons(this);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Measure::DialogMargin, Measure::DialogMargin, Measure::DialogMargin,
                               Measure::DialogMargin);
    column->setSpacing(Measure::Section);
    column->addWidget(m_pictures, 1);
    column->addLayout(buttons.row);

    connectGuarded(m_host.errorHandler(), buttons.OkBtn, &QPushButton::clicked, this, &ucSelectImage::SaveActiveObject);
    connectGuarded(m_host.errorHandler(), m_pictures->lstImages, &QListWidget::itemDoubleClicked, this,
                   [ok = buttons.OkBtn] { ok->click(); });
    // A picture that is no good is not taken. The preview says why.
    connectGuarded(m_host.errorHandler(), m_pictures, &PicturesList::selectionShown, this,
                   [this, ok = buttons.OkBtn] { ok->setEnabled(m_pictures->isSelectionUsable()); });
    connectGuarded(m_host.errorHandler(), buttons.CancelBtn, &QPushButton::clicked, this, [this] {
        if (m_form) {
            m_form->reject();
        }
    });
}

void ucSelectImage::SetParent(QDialog* form)
{
    m_form = form;
}

void ucSelectImage::SetActiveObject(const std::shared_ptr<clsSelectedImage>& selection)
{
    if (!m_form) {
        m_host.session().prompts.showMessage(
            applicationTitle(), u"You didn't type parent form for user control 'ucImages'"_s, PromptIcon::Critical);
        return;
    }
    m_selectedImage = selection;
    m_pictures->selectPicture(selection->imageFileName);
}

void ucSelectImage::SaveActiveObject()
{
    if (!m_form) {
        return;
    }
    const QString name = m_pictures->selectedPicture();
    if (!m_selectedImage || name.isEmpty()) {
        m_form->reject();
        return;
    }
    m_selectedImage->imageFileName = name;
    m_selectedImage->GetBitmapSizeVirtual(name);
    m_form->accept();
}
