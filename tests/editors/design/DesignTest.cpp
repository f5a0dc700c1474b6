#include "DesignTest.h"

#include "base/XMLUtils.h"
#include "template_engine/Templates_Set.h"

#include <QCoreApplication>

using namespace Qt::StringLiterals;

void DesignTest::openDesign()
{
    useSampleShop();
    start();
    click("ShopDesignSBtn");
}

void DesignTest::openManager(const char* button)
{
    click(button);
    showTab(PageTab);
    QCoreApplication::processEvents();
}

QDialog* DesignTest::dialog(const char* name) const
{
    QDialog* shown = nullptr;
    for (QDialog* dialog : window->findChildren<QDialog*>(QLatin1String(name))) {
        if (dialog->isVisible()) {
            EXPECT_EQ(shown, nullptr) << name << " is shown twice";
            shown = dialog;
        }
    }
    EXPECT_NE(shown, nullptr) << name;
    return shown;
}

void DesignTest::saveShop()
{
    trigger("mnuSaveShop");
    file.reset();
    const QByteArray bytes = fileBytes(files.path(u"shop.xml"_s));
    ASSERT_TRUE(file.load_buffer(bytes.constData(), static_cast<std::size_t>(bytes.size()),
                                 pugi::parse_default | pugi::parse_ws_pcdata_single));
}

QString DesignTest::saved(const QString& element) const
{
    const pugi::xml_node found = firstDescendant(file.document_element(), element.toUtf8().constData());
    EXPECT_TRUE(found) << element.toStdString();
    return QString::fromUtf8(found.text().get());
}

pugi::xml_node DesignTest::savedStyle(const QString& name) const
{
    pugi::xml_node found;
    for (const pugi::xml_node style : file.document_element().child("Shop").children("CSS")) {
        if (name == QString::fromUtf8(style.child("CSSName").text().get())) {
            EXPECT_FALSE(found) << name.toStdString() << " stands twice";
            found = style;
        }
    }
    EXPECT_TRUE(found) << name.toStdString();
    return found;
}

QString DesignTest::templateText(const char* page) const
{
    return window->CurrentTemplatesSet().templates.Item(QLatin1String(page))->template_text;
}

QString DesignTest::pageAt(const QString& query)
{
    preview->navigation->act(u"http://previewmode/"_s + query);
    return preview->documents.last();
}
