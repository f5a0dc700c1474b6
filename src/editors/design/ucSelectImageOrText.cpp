#include "editors/design/ucSelectImageOrText.h"

#include "base/ApplicationTitle.h"
#include "design/clsSelectedImage.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/CSSManagementForm.h"
#include "editors/design/pickers/DialogButtons.h"
#include "editors/design/pickers/PictureGrid.h"
#include "editors/design/pickers/PicturesList.h"
#include "look/LinedFrame.h"
#include "look/Measures.h"
#include "model/ShopSession.h"

#include <QCheckBox>
#include <QDialog>
#include <QLineEdit>
#include <QScopedValueRollback>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ucSelectImageOrText::ucSelectImageOrText(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      m_pictures(new PicturesList(host, this)),
      chkText(new QCheckBox(u"Show a &text instead of an image"_s, this)),
      txtText(textField(this)),
      btnCSS_Text(new QPushButton(u"Style of the text..."_s, this))
{
    chkText->setObjectName(u"chkText"_s);
    txtText->setObjectName(u"txtText"_s);
    txtText->setAccessibleName(u"Text"_s);
    btnCSS_Text->setObjectName(u"btnCSS_Text"_s);
    btnCSS_Text->setAutoDefault(false);
    const DialogButtons buttons = makeDialogButtons(this);
    OkBtn = buttons.OkBtn;

    auto* line = new LinedFrame(Qt::TopEdge, this);
    line->setFixedHeight(Measure::Hairline);
    auto* text = new QHBoxLayout;
    text->setSpacing(Measure::Gap);
    text->addWidget(chkText);
    text->addSpacing(Measure::Gap);
    text->addWidget(txtText, 1);
    text->addWidget(btnCSS_Text);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(Measure::DialogMargin, Measure::DialogMargin, Measure::DialogMargin,
                               Measure::DialogMargin);
    column->setSpacing(Measure::Wide);
    column->addWidget(m_pictures, 1);
    column->addWidget(line);
    column->addLayout(text);
    column->addLayout(buttons.row);
    useText(false);

    connectGuarded(m_host.errorHandler(), chkText, &QCheckBox::toggled, this, &ucSelectImageOrText::useText);
    connectGuarded(m_host.errorHandler(), m_pictures, &PicturesList::selectionShown, this,
                   &ucSelectImageOrText::enableOk);
    connectGuarded(m_host.errorHandler(), m_pictures, &PicturesList::pictureSelected, this, [this] {
        if (!m_filling) {
            chkText->setChecked(false);
        }
    });
    connectGuarded(m_host.errorHandler(), btnCSS_Text, &QPushButton::clicked, this,
                   [this] { OpenStyle(m_host, this, u"Header text style"_s, m_selection->Tag); });
    connectGuarded(m_host.errorHandler(), OkBtn, &QPushButton::clicked, this, &ucSelectImageOrText::SaveActiveObject);
    connectGuarded(m_host.errorHandler(), m_pictures->lstImages, &QListWidget::itemDoubleClicked, this,
                   [this] { OkBtn->click(); });
    connectGuarded(m_host.errorHandler(), buttons.CancelBtn, &QPushButton::clicked, this, [this] {
        if (m_form) {
            m_form->reject();
        }
    });
}

void ucSelectImageOrText::SetParent(QDialog* form)
{
    m_form = form;
}

void ucSelectImageOrText::useText(bool text)
{
    m_pictures->setChoosable(!text);
    txtText->setEnabled(text);
    enableOk();
}

// A picture that is no good is not taken. The preview says why.
void ucSelectImageOrText::enableOk()
{
    OkBtn->setEnabled(chkText->isChecked() || m_pictures->isSelectionUsable());
}

void ucSelectImageOrText::SetActiveObject(const std::shared_ptr<clsSelectedImage>& selection)
{
    if (!m_form) {
        m_host.session().prompts.showMessage(
            applicationTitle(), u"You didn't type parent form for user control 'ucImages'"_s, PromptIcon::Critical);
        return;
    }
    const QScopedValueRollback filling(m_filling, true);
    m_selection = selection;
    btnCSS_Text->setEnabled(selection != nullptr);
    txtText->setText(selection ? selection->TextValue : QString());
    chkText->setChecked(selection && selection->SelectionType == ImageSelection::Text);
    m_pictures->selectPicture(selection ? selection->imageFileName : QString());
}

void ucSelectImageOrText::SaveActiveObject()
{
    if (!m_form) {
        return;
    }
    if (m_selection) {
        if (chkText->isChecked()) {
            m_selection->SelectionType = ImageSelection::Text;
            m_selection->TextValue = txtText->text();
        } else {
            m_selection->SelectionType = ImageSelection::Image;
            const QString name = m_pictures->selectedPicture();
            if (!name.isEmpty()) {
                m_selection->imageFileName = name;
                m_selection->GetBitmapSizeVirtual(name);
            }
        }
    }
    m_form->accept();
}
