// One slot of a page that may show an image, a text or nothing. ShopDesignClass owns twelve of them; a category and a
// product own one each. The size is kept with the choice, so that a page needs no look at the file.
#pragma once

#include "base/Unwritable.h"
#include "base/XmlNode.h"
#include "design/DesignServices.h"
#include "design/ImageSize.h"

#include <QString>

#include <memory>

enum class ImageSelection : qint32 { Nothing = 0, Text = 1, Image = 2 };

// What the two boxes beside a picture show.
struct ImageSizeTexts
{
    QString width;
    QString height;
};

class clsSelectedImage
{
public:
    explicit clsSelectedImage(const DesignServices& services, const QString& tag = QString());

    QString TextValue;     // kept when the slot shows something else, too
    QString imageFileName; // relative to pictures/
    ImageSelection SelectionType = ImageSelection::Nothing;
    std::shared_ptr<void> ImageList; // a place for an image list; nothing fills it
    QString Tag;                     // the name of the slot's element in the shop file

    // Size in pixels. When it is not known (0) and there is a file name, it is read from the file and kept: errors as
    // for readImageSize.
    qint16 WidthBmp();
    qint16 HeightBmp();
    void setWidthBmp(qint16 width) { m_size.width = width; }
    void setHeightBmp(qint16 height) { m_size.height = height; }
    // The size for the shop file: as above, or, where nothing may fail, what is kept for a picture that is gone; a size
    // that was only looked up for that is not kept.
    ImageSize writtenSize(Unwritable unwritable);
    // The size as it is kept, 0 when it is not known; the file is not asked.
    ImageSize cachedSize() const { return m_size; }

    // Appends the slot's element to the parent. Reads the size when there is a file name and a size is not known:
    // errors as for readImageSize.
    void ToXML(pugi::xml_node parent, Unwritable unwritable = Unwritable::Raises);
    // Reads the first element named Tag below the node; changes nothing when there is none. An empty Tag shows a box.
    // ErrorNumber::TypeMismatch when a size of an image slot is no number, Overflow when it does not fit.
    void FromXML(const pugi::xml_node& node);

    // The texts for the two boxes: what is kept, or where that is 0 the size of the picture that is shown beside them.
    ImageSizeTexts GetBitmapSize(const ImageSize& shownPicture) const;
    // Keeps the size of the picture that is shown and returns its texts.
    ImageSizeTexts GetBitmapSizeOriginal(const ImageSize& shownPicture);
    // Keeps the size of the picture of that name under pictures/. An empty name and an unreadable file change nothing.
    void GetBitmapSizeVirtual(const QString& fileName);

private:
    // The size in the picture's file; kept for a save. Where nothing may fail, what is kept stands for a picture that
    // is gone.
    ImageSize sizeForFile(Unwritable unwritable);

    const DesignServices* m_services;
    ImageSize m_size;
};
