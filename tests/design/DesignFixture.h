// A temporary application folder with the services that the design's classes are handed, and XML from a text.
#pragma once

#include "base/LoadLog.h"
#include "base/XmlFile.h"
#include "design/DesignServices.h"
#include "support/TestSupport.h"

#include <QImage>

#include <gtest/gtest.h>

class DesignFixture : public testing::Test
{
protected:
    // Writes a picture of that size under pictures/.
    void writePicture(const QString& name, int width, int height)
    {
        QImage image(width, height, QImage::Format_RGB32);
        image.fill(Qt::darkGreen);
        ASSERT_TRUE(image.save(temporary.path(QStringLiteral("pictures/") + name), "PNG"));
    }

    // The document element of a text.
    pugi::xml_node element(const QByteArray& xml)
    {
        file.parse(xml);
        return file.document().first_child();
    }

    // What an object writes into an empty element of that name.
    template <class Object>
    QByteArray written(Object&& object, const char* tag = "X")
    {
        pugi::xml_document document;
        object.ToXML(document.append_child(tag));
        return xmlToBytes(document);
    }

    QStringList logLines() const
    {
        QStringList lines = QString::fromUtf8(fileBytes(folder.loadLogFile())).split(QStringLiteral("\r\n"));
        lines.removeLast();
        return lines;
    }

    TemporaryShopFolder temporary;
    ApplicationFolder folder = temporary.folder();
    LoadLog log{folder};
    RecordingPrompts prompts;
    DesignServices services{log, prompts, folder};
    XmlFile file;
};
