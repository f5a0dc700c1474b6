// A session on a temporary application folder, whose day is 15 May 2024, and shop files made of a few elements.
#pragma once

#include "base/XMLUtils.h"
#include "base/XmlFile.h"
#include "model/CategoryClass.h"
#include "model/ProductClass.h"
#include "model/ShopClass.h"
#include "model/ShopSession.h"
#include "model/shop_file/ShopFile.h"
#include "support/TestSupport.h"

#include <QDate>

#include <gtest/gtest.h>

class ShopFixture : public testing::Test
{
protected:
    // A shop file of the given version with all that a shop must have, and the elements given behind that.
    static QByteArray shopFile(const QByteArray& elements, const QByteArray& version = "1.2.0")
    {
        return "<Tarnwick><Shop><Version>" + version +
               "</Version><Name>S</Name><Description/><MaxProductId>100</MaxProductId><SelectedCountries/>" + elements +
               "</Shop></Tarnwick>";
    }
    static QByteArray category(const QByteArray& id, const QByteArray& elements)
    {
        return "<Category><Id>" + id + "</Id><Name>C" + id + "</Name>" + elements + "</Category>";
    }
    static QByteArray product(const QByteArray& id, const QByteArray& elements)
    {
        return "<Product><Id>" + id + "</Id><Name>P" + id + "</Name><Related/>" + elements + "</Product>";
    }

    // Writes the shop file and loads it; the number of the error that the loading raises, else 0.
    int load(const QByteArray& xml)
    {
        writeFile(session.folder.shopFile(), xml);
        return errorOf([this] { loadShop(session); });
    }

    // Saves the shop and gives the bytes of the file.
    QByteArray saved()
    {
        writeShopFile(session);
        return fileBytes(session.folder.shopFile());
    }

    // The bytes of what an object writes into an element of that name.
    template <class Object>
    static QByteArray written(Object& object, const char* tag = "X")
    {
        pugi::xml_document document;
        object.ToXML(document.append_child(tag));
        return xmlToBytes(document);
    }

    std::shared_ptr<CategoryClass> rootCategory(int index = 1) { return session.shop->categories.Item(index); }
    std::shared_ptr<ProductClass> firstProduct() { return rootCategory()->products.Item(1); }

    // The messages of load.log in order, without their quotes.
    QStringList logLines()
    {
        QStringList lines;
        for (const QString& line :
             QString::fromUtf8(fileBytes(session.folder.loadLogFile())).split(QStringLiteral("\r\n"))) {
            if (!line.isEmpty()) {
                lines.append(line.sliced(1, line.size() - 2));
            }
        }
        return lines;
    }

    TemporaryShopFolder temporary;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2024, 5, 15)};
    ShopSession session{temporary.folder(), prompts, clock};
};
