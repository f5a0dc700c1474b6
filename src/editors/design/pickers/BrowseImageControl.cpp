#include "editors/design/pickers/BrowseImageControl.h"

#include "base/ApplicationTitle.h"
#include "base/WholeNumbers.h"
#include "editors/LinkLabel.h"
#include "editors/NumericBox.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PictureFiles.h"
#include "editors/design/pickers/frmSelectImage.h"
#include "model/ShopSession.h"

#include <QGridLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

namespace {

// An empty box counts as 0.
qint16 pixelsIn(const QString& text)
{
    return text.isEmpty() ? qint16{0} : int16FromText(text);
}

NumericBox* sizeBox(const char* name, QLabel* label, QWidget* parent)
{
    auto* box = named(new NumericBox(NumericBox::Takes::WholeNumber, parent), name, label->text());
    box->setFixedWidth(box->fontMetrics().horizontalAdvance(u"00000000"_s) + 2 * box->fontMetrics().averageCharWidth());
    label->setBuddy(box);
    return box;
}

} // namespace

BrowseImageControl::BrowseImageControl(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      TitleLbl(named(new QLabel(this), "TitleLbl", QString())),
      ImagePB(named(new PictureBox(u"Invalid Picture"_s, this), "ImagePB", u"Picture"_s)),
      BrowseBtnLbl(new LinkLabel("BrowseBtnLbl", u"Browse..."_s, this)),
      DeleteBtnLbl(new LinkLabel("DeleteBtnLbl", u"Delete"_s, this)),
      WidthLbl(named(new QLabel(u"Width (pixels)"_s, this), "WidthLbl", QString())),
      txtWidth(sizeBox("txtWidth", WidthLbl, this)),
      HeightLbl(named(new QLabel(u"Height (pixels)"_s, this), "HeightLbl", QString())),
      txtHeight(sizeBox("txtHeight", HeightLbl, this))
{
    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(14);
    grid->addWidget(TitleLbl, 0, 0, 1, 3);
    grid->addWidget(ImagePB, 1, 0, 5, 1);
    grid->addWidget(BrowseBtnLbl, 1, 1, 1, 2);
    grid->addWidget(DeleteBtnLbl, 2, 1, 1, 2);
    grid->addWidget(WidthLbl, 3, 1);
    grid->addWidget(txtWidth, 3, 2);
    grid->addWidget(HeightLbl, 4, 1);
    grid->addWidget(txtHeight, 4, 2);
    grid->setRowStretch(5, 1);
    grid->setColumnStretch(3, 1);
    ImagePB->setFixedSize(ImagePB->sizeHint());
    setTitleText(QString());
    setBackground(m_background);

    connectGuarded(m_host.errorHandler(), BrowseBtnLbl, &LinkLabel::clicked, this, &BrowseImageControl::browse);
    connectGuarded(m_host.errorHandler(), DeleteBtnLbl, &LinkLabel::clicked, this, &BrowseImageControl::Remove);
    connectGuarded(m_host.errorHandler(), ImagePB, &PictureBox::filesDropped, this, &BrowseImageControl::takeFiles);
    connectGuarded(m_host.errorHandler(), txtWidth, &NumericBox::edited, this, [this](const QString& text) {
        if (m_selectedImage) {
            m_selectedImage->setWidthBmp(pixelsIn(text));
        }
    });
    connectGuarded(m_host.errorHandler(), txtHeight, &NumericBox::edited, this, [this](const QString& text) {
        if (m_selectedImage) {
            m_selectedImage->setHeightBmp(pixelsIn(text));
        }
    });
}

QString BrowseImageControl::titleText() const
{
    return TitleLbl->text();
}

void BrowseImageControl::setTitleText(const QString& text)
{
    TitleLbl->setText(text);
    TitleLbl->setVisible(!text.isEmpty());
}

void BrowseImageControl::setBackground(const QColor& colour)
{
    m_background = colour;
    ImagePB->setBackground(colour);
}

void BrowseImageControl::setImageFileName(const QString& name)
{
    m_imageFileName = name;
    if (name.isEmpty()) {
        ImagePB->clear();
    } else {
        ImagePB->showFile(PicturePath(m_host, name));
    }
}

void BrowseImageControl::setSelectedImage(const std::shared_ptr<clsSelectedImage>& selection)
{
    m_selectedImage = selection;
    setImageFileName(selection ? selection->imageFileName : QString());
    fillSizes(selection ? selection->GetBitmapSize(ImagePB->pictureSize()) : ImageSizeTexts());
}

void BrowseImageControl::Remove()
{
    setImageFileName(QString());
    if (m_selectedImage) {
        m_selectedImage->imageFileName.clear();
        m_selectedImage->setWidthBmp(0);
        m_selectedImage->setHeightBmp(0);
    }
    fillSizes({u"0"_s, u"0"_s});
}

void BrowseImageControl::browse()
{
    if (!m_selectedImage) {
        return;
    }
    // What stands in the dialog may outlive the binding of the panel.
    const std::shared_ptr<clsSelectedImage> selection = m_selectedImage;
    frmSelectImage dialog(m_host, selection, window());
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    setImageFileName(selection->imageFileName);
    fillSizes(selection->GetBitmapSizeOriginal(ImagePB->pictureSize()));
}

void BrowseImageControl::takeFiles(const QStringList& files)
{
    const std::shared_ptr<clsSelectedImage> selection = m_selectedImage;
    if (!selection) {
        return;
    }
    QString last;
    for (const QString& file : files) {
        const QString name = addToPictures(m_host, file);
        if (name.isEmpty()) {
            continue;
        }
        if (hasReadableSize(m_host, name)) {
            last = name;
        } else {
            m_host.session().prompts.showMessage(applicationTitle(), u"Invalid picture: %1"_s.arg(name),
                                                 PromptIcon::Warning);
        }
    }
    if (last.isEmpty()) {
        return;
    }
    selection->imageFileName = last;
    selection->GetBitmapSizeVirtual(last);
    setImageFileName(last);
    fillSizes(selection->GetBitmapSizeOriginal(ImagePB->pictureSize()));
}

void BrowseImageControl::fillSizes(const ImageSizeTexts& sizes)
{
    txtWidth->fill(sizes.width);
    txtHeight->fill(sizes.height);
}
