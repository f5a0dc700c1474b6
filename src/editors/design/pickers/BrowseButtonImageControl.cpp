#include "editors/design/pickers/BrowseButtonImageControl.h"

#include "editors/LinkLabel.h"
#include "editors/PanelHost.h"
#include "editors/design/pickers/PictureBox.h"
#include "editors/design/pickers/PictureFiles.h"
#include "model/ShopSession.h"

#include <QVBoxLayout>

using namespace Qt::StringLiterals;

BrowseButtonImageControl::BrowseButtonImageControl(PanelHost& host, QWidget* parent)
    : QWidget(parent),
      m_host(host),
      ImagePB(new PictureBox(u"Invalid picture"_s, this)),
      BrowseBtnLbl(new LinkLabel("BrowseBtnLbl", u"Browse..."_s, this)),
      DeleteBtnLbl(new LinkLabel("DeleteBtnLbl", u"Delete"_s, this))
{
    ImagePB->setObjectName(u"ImagePB"_s);
    ImagePB->setAccessibleName(u"Picture"_s);
    auto* links = new QVBoxLayout;
    links->addWidget(BrowseBtnLbl);
    links->addWidget(DeleteBtnLbl);
    links->addStretch(1);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addWidget(ImagePB, 1);
    row->addLayout(links);

    connectGuarded(m_host.errorHandler(), BrowseBtnLbl, &LinkLabel::clicked, this, &BrowseButtonImageControl::browse);
    connectGuarded(m_host.errorHandler(), ImagePB, &PictureBox::filesDropped, this,
                   &BrowseButtonImageControl::takeFiles);
    connectGuarded(m_host.errorHandler(), DeleteBtnLbl, &LinkLabel::clicked, this, &BrowseButtonImageControl::Remove);
}

void BrowseButtonImageControl::Remove()
{
    setImageFileName(QString());
}

void BrowseButtonImageControl::setImageFileName(const QString& name)
{
    m_imageFileName = name;
    if (name.isEmpty()) {
        ImagePB->clear();
    } else {
        ImagePB->showFile(PicturePath(m_host, name));
    }
}

void BrowseButtonImageControl::browse()
{
    const QString chosen = m_host.session().prompts.chooseFile(pictureStartFolder(), pictureFileFilter());
    if (!chosen.isEmpty()) {
        setImageFileName(chosen);
    }
}

void BrowseButtonImageControl::takeFiles(const QStringList& files)
{
    for (const QString& file : files) {
        if (const QString name = addToPictures(m_host, file); !name.isEmpty()) {
            setImageFileName(name);
        }
    }
}
