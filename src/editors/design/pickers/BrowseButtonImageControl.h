// An image slot in its plainest form: the picture, a link to choose a file, and one to take it away. Files that are
// dropped onto it are added to the pictures of the shop, and the last one is shown. No panel has one.
#pragma once

#include <QString>
#include <QWidget>

class LinkLabel;
class PanelHost;
class PictureBox;

class BrowseButtonImageControl : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it.
    BrowseButtonImageControl(PanelHost& host, QWidget* parent);

    // Empties the picture and its name.
    void Remove();

    // Setting it shows the picture: an absolute path, or a name under pictures/. What cannot be shown is left out.
    const QString& imageFileName() const { return m_imageFileName; }
    void setImageFileName(const QString& name);

private:
    void browse();
    void takeFiles(const QStringList& files);

    PanelHost& m_host;
    PictureBox* ImagePB;
    LinkLabel* BrowseBtnLbl;
    LinkLabel* DeleteBtnLbl;
    QString m_imageFileName;
};
