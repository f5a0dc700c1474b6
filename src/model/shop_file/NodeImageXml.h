// The image of a category or a product in the shop file: a name and a size, beside the node's other values.
#pragma once

#include "base/WholeNumbers.h"
#include "base/XMLUtils.h"
#include "model/shop_file/CatalogueXml.h"

#include <QString>

#include <pugixml.hpp>

// A slot is made only for what is there. Errors as for int16FromText.
template <class Node>
void readNodeImage(Node& node, const QString& picture, const QString& width, const QString& height)
{
    const QString fileName = StripDirectory(picture);
    const qint16 widthBmp = int16FromText(width);
    const qint16 heightBmp = int16FromText(height);
    if (!fileName.isEmpty() || widthBmp != 0 || heightBmp != 0) {
        clsSelectedImage& image = *node.selectedImage();
        image.imageFileName = fileName;
        image.setWidthBmp(widthBmp);
        image.setHeightBmp(heightBmp);
    }
}

// Errors as for clsSelectedImage::writtenSize.
template <class Node>
void writeNodeImage(pugi::xml_node element, Node& node, Unwritable unwritable)
{
    clsSelectedImage* image = node.hasSelectedImage() ? node.selectedImage().get() : nullptr;
    AddChildElement(element, "Picture", image != nullptr ? image->imageFileName : QString());
    const ImageSize size = image != nullptr ? image->writtenSize(unwritable) : ImageSize();
    AddChildElement(element, "Width", QString::number(size.width));
    AddChildElement(element, "Height", QString::number(size.height));
}
