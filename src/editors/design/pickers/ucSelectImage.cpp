#include "editors/design/pickers/ucSelectImage.h"

#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/pickers/PicturesList.h"
#include "model/ShopSession.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucSelectImage::ucSelectImage(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_pictures(new PicturesList(host, this)),
      OkBtn(named(new QPushButton(u"OK"_s, this), "OkBtn", u"OK"_s)),
      CancelBtn(named(new QPushButton(u"Cancel"_s, this), "CancelBtn", u"Cancel"_s))
{
    OkBtn->setDefault(true);
    CancelBtn->setAutoDefault(false); // Enter stays with OkBtn
    auto* buttons = new QHBoxLayout;
    buttons->addStretch(1);
    buttons->addWidget(OkBtn);
    buttons->addWidget(CancelBtn);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(16, 16, 16, 16);
    column->setSpacing(14);
    column->addWidget(m_pictures, 1);
    column->addLayout(buttons);

    connectGuarded(m_host.errorHandler(), OkBtn, &QPushButton::clicked, this, &ucSelectImage::SaveActiveObject);
    connectGuarded(m_host.errorHandler(), m_pictures->lstImages, &QListWidget::itemDoubleClicked, this,
                   &ucSelectImage::SaveActiveObject);
    connectGuarded(m_host.errorHandler(), CancelBtn, &QPushButton::clicked, this, [this] {
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
