#include "editors/design/pickers/PicturesList.h"

#include "base/FileBytes.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PicturePathSetting.h"
#include "model/ShopSession.h"

#include <QDir>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QLabel>

using namespace Qt::StringLiterals;

PicturesList::PicturesList(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      lstImages(named(new QListWidget(this), "lstImages", u"Pictures of the shop"_s)),
      imgPreview(named(new PictureBox(u"Invalid picture"_s, this), "imgPreview", u"Preview"_s)),
      AddBttn(named(new QPushButton(u"&Add a picture..."_s, this), "AddBttn", u"Add a picture"_s)),
      m_host(host)
{
    const QStringList fileList = QDir(host.session().folder.picturesFolder())
                                     .entryList(QDir::Files, QDir::Name | QDir::IgnoreCase | QDir::LocaleAware);
    lstImages->addItems(fileList);
    AddBttn->setAutoDefault(false); // Enter stays with the dialog's button
    lstImages->setUniformItemSizes(true);
    lstImages->setSpacing(1);
    imgPreview->setMinimumSize(220, 180);

    auto* caption = new QLabel(u"&Pictures of the shop"_s, this);
    caption->setBuddy(lstImages);
    auto* list = new QVBoxLayout;
    list->addWidget(caption);
    list->addWidget(lstImages, 1);
    list->addWidget(AddBttn, 0, Qt::AlignLeft);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addLayout(list, 1);
    row->addWidget(imgPreview, 1);

    connectGuarded(m_host.errorHandler(), lstImages, &QListWidget::itemSelectionChanged, this, [this] {
        showSelected();
        if (lstImages->currentItem() && !lstImages->selectedItems().isEmpty()) {
            Q_EMIT pictureSelected(selectedPicture());
        }
    });
    connectGuarded(m_host.errorHandler(), AddBttn, &QPushButton::clicked, this, &PicturesList::addPicture);
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

void PicturesList::addPicture()
{
    PicturePathSetting setting;
    const QString chosen = m_host.session().prompts.chooseFile(setting.folder(), pictureFileFilter());
    const QFileInfo source(chosen);
    setting.setFolder(chosen.isEmpty() ? QString()
                                       : source.path()); // a cancelled choice forgets the folder, deliberately
    if (chosen.isEmpty()) {
        return;
    }
    const QString name = source.fileName();
    const QFileInfo target(m_host.session().folder.picturesFolder() + name);
    if (target.exists() && !m_host.session().prompts.askYesNo(u"Tarnwick"_s, u"Overwrite this file?"_s)) {
        return;
    }
    if (source.canonicalFilePath() != target.canonicalFilePath() || !target.exists()) {
        writeFileBytes(target.filePath(), readFileBytes(chosen));
    }
    if (lstImages->findItems(name, Qt::MatchExactly | Qt::MatchCaseSensitive).isEmpty()) {
        lstImages->addItem(name);
    }
    selectPicture(name);
    showSelected(); // the file behind a name that was selected already may be another now
}

void PicturesList::showSelected()
{
    const QString name = selectedPicture();
    if (name.isEmpty()) {
        imgPreview->clear();
        return;
    }
    imgPreview->showFile(m_host.session().folder.picturesFolder() + name);
}

QString pictureFileFilter()
{
    return u"Pictures (*.bmp;*.png;*jpg;*gif) (*.bmp *.png *jpg *gif)"_s;
}

QString PicturePath(PanelHost& host, const QString& name)
{
    if (name.contains(u':') || QDir::isAbsolutePath(name)) {
        return name;
    }
    try {
        return host.session().folder.pictureFile(name);
    } catch (const RuntimeError&) {
        return {};
    }
}
