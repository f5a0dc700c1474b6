#include "editors/design/pickers/PicturesList.h"

#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PictureFiles.h"
#include "editors/design/pickers/PictureGrid.h"
#include "editors/design/pickers/PicturePathSetting.h"
#include "look/Measures.h"
#include "look/WordLabel.h"
#include "model/ShopSession.h"

#include <QDir>
#include <QFileInfo>
#include <QGridLayout>
#include <QLineEdit>
#include <QLocale>
#include <QPushButton>
#include <QScreen>

using namespace Qt::StringLiterals;

PicturesList::PicturesList(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      lstImages(
          named(new PictureGrid(host.session().folder.picturesFolder(), this), "lstImages", u"Pictures of the shop"_s)),
      imgPreview(named(new PictureBox(u"Invalid picture"_s, this), "imgPreview", u"Preview"_s)),
      AddBttn(named(new QPushButton(u"&Add a picture..."_s, this), "AddBttn", u"Add a picture"_s)),
      m_host(host),
      txtFilter(named(new QLineEdit(this), "txtFilter", u"Filter by name"_s)),
      lblName(named(new WordLabel(WordLabel::Kind::Heading, {}, this), "lblName", QString())),
      lblSize(named(new WordLabel(WordLabel::Kind::Quiet, {}, this), "lblSize", QString()))
{
    const QStringList fileList = QDir(host.session().folder.picturesFolder())
                                     .entryList(QDir::Files, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    lstImages->addItems(fileList);
    AddBttn->setAutoDefault(false); // Enter stays with the dialog's button
    txtFilter->setPlaceholderText(u"Filter by name"_s);
    txtFilter->setClearButtonEnabled(true);
    layOut();
    showSelected();

    connectGuarded(m_host.errorHandler(), lstImages, &QListWidget::itemSelectionChanged, this, [this] {
        showSelected();
        if (lstImages->currentItem() && !lstImages->selectedItems().isEmpty()) {
            Q_EMIT pictureSelected(selectedPicture());
        }
    });
    connectGuarded(m_host.errorHandler(), txtFilter, &QLineEdit::textChanged, this,
                   [this](const QString& text) { lstImages->filter(text); });
    connectGuarded(m_host.errorHandler(), AddBttn, &QPushButton::clicked, this, &PicturesList::addPicture);
    connectGuarded(m_host.errorHandler(), lstImages, &PictureGrid::filesDropped, this, &PicturesList::addFiles);
    connectGuarded(m_host.errorHandler(), imgPreview, &PictureBox::filesDropped, this, &PicturesList::addFiles);
}

QSize PicturesList::dialogSize(const QWidget& over)
{
    constexpr QSize roomy(800, 580);
    constexpr QSize aroundIt(40, 80); // frame, and what the desktop keeps for itself
    return roomy.boundedTo(over.screen()->availableSize() - aroundIt);
}

void PicturesList::layOut()
{
    auto* caption = new WordLabel(WordLabel::Kind::Heading, u"&Pictures of the shop"_s, this);
    caption->setBuddy(lstImages);
    txtFilter->setMinimumWidth(120);
    txtFilter->setMaximumWidth(216);
    lstImages->setMinimumSize(150, 140);
    imgPreview->setMinimumSize(160, 120);
    for (WordLabel* words : {lblName, lblSize}) {
        words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // a name does not widen the dialog
    }

    auto* heading = new QHBoxLayout;
    heading->addWidget(caption);
    heading->addStretch(1);
    heading->addWidget(txtFilter, 100);
    auto* words = new QVBoxLayout;
    words->setSpacing(Measure::Tight);
    words->addWidget(lblName);
    words->addWidget(lblSize);
    words->addStretch(1);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(Measure::DialogMargin);
    grid->setVerticalSpacing(Measure::Gap);
    grid->addLayout(heading, 0, 0);
    grid->addWidget(lstImages, 1, 0, 2, 1);
    grid->addWidget(imgPreview, 1, 1);
    grid->addLayout(words, 2, 1);
    grid->addWidget(AddBttn, 3, 0, Qt::AlignLeft);
    grid->setRowStretch(1, 3);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 19);
    grid->setColumnStretch(1, 10);
    setTabOrder(txtFilter, lstImages);
    setTabOrder(lstImages, AddBttn);
}

void PicturesList::selectPicture(const QString& name)
{
    for (int row = 0; row < lstImages->count(); ++row) {
        if (lstImages->item(row)->text() == name) {
            lstImages->setCurrentRow(row);
            return;
        }
    }
    lstImages->setCurrentRow(-1);
    lstImages->clearSelection();
}

QString PicturesList::selectedPicture() const
{
    const QList<QListWidgetItem*> selected = lstImages->selectedItems();
    return selected.isEmpty() ? QString() : selected.front()->text();
}

void PicturesList::setChoosable(bool isChoosable)
{
    lstImages->setEnabled(isChoosable);
    txtFilter->setEnabled(isChoosable);
}

// Adding --------------------------------------------------------------------------------------------------------------

void PicturesList::addPicture()
{
    const QString chosen = m_host.session().prompts.chooseFile(pictureStartFolder(), pictureFileFilter());
    // A cancelled choice forgets the folder, deliberately.
    PicturePathSetting().setFolder(chosen.isEmpty() ? QString() : QFileInfo(chosen).path());
    if (!chosen.isEmpty()) {
        addFiles({chosen});
    }
}

void PicturesList::addFiles(const QStringList& files)
{
    for (const QString& file : files) {
        const QString name = addToPictures(m_host, file);
        if (name.isEmpty()) {
            continue;
        }
        if (lstImages->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty()) {
            lstImages->addItem(name);
        }
        lstImages->refresh(name);
        txtFilter->clear();
        if (selectedPicture() == name) {
            showSelected(); // the file behind the name is another now
            Q_EMIT pictureSelected(name);
        } else {
            selectPicture(name);
        }
        lstImages->setFocus(); // Enter takes the picture now
    }
}

// The chosen one ------------------------------------------------------------------------------------------------------

void PicturesList::showSelected()
{
    const QString name = selectedPicture();
    if (name.isEmpty()) {
        imgPreview->clear();
    } else {
        imgPreview->showFile(m_host.session().folder.picturesFolder() + name);
    }
    m_isSelectionUsable = name.isEmpty() || hasReadableSize(m_host, name);
    showWords();
    Q_EMIT selectionShown();
}

void PicturesList::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    showWords();
}

void PicturesList::showWords()
{
    const QString name = selectedPicture();
    lblName->setText(lblName->fontMetrics().elidedText(name, Qt::ElideMiddle, lblName->width()));
    lblName->setToolTip(lblName->text() == name ? QString() : name);
    if (name.isEmpty()) {
        lblSize->clear();
        return;
    }
    const QFileInfo file(m_host.session().folder.picturesFolder() + name);
    const QString bytes = QLocale().formattedDataSize(file.size(), 1, QLocale::DataSizeTraditionalFormat);
    const ImageSize pixels = imgPreview->pictureSize();
    lblSize->setText(pixels.width == 0 ? bytes
                                       : u"%1 × %2 pixels, %3"_s.arg(pixels.width).arg(pixels.height).arg(bytes));
}
