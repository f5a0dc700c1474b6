// The picture of a category or a product with its size on the page. It works on the selection that it is given, at
// once: choosing, removing and resizing do not wait for a submit. Files that are dropped onto the picture are added to
// those of the shop, and the last one that is a picture is chosen; a box names the others. Two panels own one each.
#pragma once

#include "design/clsSelectedImage.h"

#include <QColor>
#include <QWidget>

#include <memory>

class LinkLabel;
class NumericBox;
class PanelHost;
class PictureBox;
class QLabel;

class BrowseImageControl : public QWidget
{
    Q_OBJECT

public:
    // The host must outlive it.
    BrowseImageControl(PanelHost& host, QWidget* parent);

    // Takes the picture away: from the box, and name and size from the selection.
    void Remove();

    QString titleText() const;
    void setTitleText(const QString& text);
    // Behind the picture; white until it is set.
    QColor Background() const { return m_background; }
    void setBackground(const QColor& colour);

    // The picture's name. Setting it shows the picture: a text with a colon is an absolute path, any other a file under
    // pictures/. A picture that cannot be shown is left out.
    const QString& imageFileName() const { return m_imageFileName; }
    void setImageFileName(const QString& name);

    // Setting it shows the selection's picture and size. None: the control is empty and changes nothing.
    const std::shared_ptr<clsSelectedImage>& selectedImage() const { return m_selectedImage; }
    void setSelectedImage(const std::shared_ptr<clsSelectedImage>& selection);

private:
    void browse();
    void takeFiles(const QStringList& files);
    void fillSizes(const ImageSizeTexts& sizes);

    PanelHost& m_host;
    QLabel* TitleLbl;
    PictureBox* ImagePB;
    LinkLabel* BrowseBtnLbl;
    LinkLabel* DeleteBtnLbl;
    QLabel* WidthLbl;
    NumericBox* txtWidth;
    QLabel* HeightLbl;
    NumericBox* txtHeight;
    QColor m_background = Qt::white;
    QString m_imageFileName;
    std::shared_ptr<clsSelectedImage> m_selectedImage;
};
