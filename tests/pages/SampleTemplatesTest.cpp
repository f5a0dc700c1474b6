// The templates that an installation carries: what their forms send is what the preview reads, a picture is shown when
// there is one, and the files keep the form that the reader of templates expects.
#include "pages/PagesTest.h"
#include "pages/RenderPage.h"

#include <QDir>
#include <QMap>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace {

// One field of a form as its tag says it.
struct Field
{
    QString tag;
    QString name;
    QString type;
};

QString attributeOf(const QString& tag, const QString& name)
{
    const QRegularExpression pattern(u"\\s%1=\"([^\"]*)\""_s.arg(name));
    const QRegularExpressionMatch match = pattern.match(tag);
    return match.hasMatch() ? match.captured(1) : QString();
}

// All fields of a form that have a name, in their order.
QList<Field> fieldsOf(const QString& form)
{
    // The page's own tags within an attribute are passed over.
    static const QRegularExpression pattern(u"<(?:input|select|textarea|button)\\b(?:<!--:.*?:-->|[^>])*>"_s);
    QList<Field> fields;
    for (const QRegularExpressionMatch& match : pattern.globalMatch(form)) {
        const QString tag = match.captured();
        const QString name = attributeOf(tag, u"name"_s);
        if (!name.isEmpty()) {
            fields << Field{tag, name, attributeOf(tag, u"type"_s)};
        }
    }
    return fields;
}

QStringList namesOf(const QList<Field>& fields)
{
    QStringList names;
    for (const Field& field : fields) {
        names << field.name;
    }
    return names;
}

class SampleTemplatesTest : public PagesTest
{
protected:
    SampleTemplatesTest()
    {
        for (const QString& file : m_folder.entryList({u"*.html"_s, u"*.html.def"_s}, QDir::Files)) {
            texts[file] = QString::fromUtf8(fileBytes(m_folder.filePath(file)));
        }
        EXPECT_EQ(texts.size(), 24);
    }

    // Every form of every template with the name of its file.
    QList<std::pair<QString, QString>> forms() const
    {
        static const QRegularExpression pattern(u"<form\\b.*?</form>"_s,
                                                QRegularExpression::DotMatchesEverythingOption);
        QList<std::pair<QString, QString>> found;
        for (auto text = texts.begin(); text != texts.end(); ++text) {
            for (const QRegularExpressionMatch& match : pattern.globalMatch(text.value())) {
                found.append({text.key(), match.captured()});
            }
        }
        return found;
    }

    // The pictures of pictures/ that a page shows.
    QStringList picturesOn(const QString& pageName, const PageObject& object)
    {
        static const QRegularExpression pattern(u"<img src=\"[^\"]*/pictures/([^\"]*)\""_s);
        QStringList found;
        for (const QRegularExpressionMatch& match : pattern.globalMatch(RenderPage(context, pageName, object))) {
            found << match.captured(1);
        }
        return found;
    }

    QMap<QString, QString> texts;

private:
    QDir m_folder{QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/")};
};

TEST_F(SampleTemplatesTest, EveryFormIsSentToTheShopAsAnAddress)
{
    ASSERT_GT(forms().size(), 20);
    for (const auto& [file, form] : forms()) {
        const QString opening = form.left(form.indexOf(u'\n'));
        EXPECT_EQ(attributeOf(opening, u"method"_s), u"get"_s) << file.toStdString();
        EXPECT_EQ(attributeOf(opening, u"action"_s), u"<!--:server:-->"_s) << file.toStdString();
        EXPECT_FALSE(form.contains(u"type=\"image\""_s)) << file.toStdString(); // it sends two fields of its own
    }
}

TEST_F(SampleTemplatesTest, AProductIsBoughtByAHiddenEmptyField)
{
    int buying = 0;
    for (const auto& [file, form] : forms()) {
        const QList<Field> fields = fieldsOf(form);
        const QStringList names = namesOf(fields);
        if (!names.contains(u"addtoshopcart"_s) && !names.contains(u"price"_s)) {
            continue;
        }
        ++buying;
        ASSERT_EQ(names, (QStringList{u"addtoshopcart"_s, u"product_id"_s, u"price"_s, u"quantity"_s}))
            << file.toStdString();
        EXPECT_EQ(fields[0].type, u"hidden"_s) << file.toStdString();
        EXPECT_TRUE(fields[0].tag.contains(u" value=\"\""_s)) << file.toStdString();
    }
    EXPECT_EQ(buying, 12); // one price and several, on three pages, in the working and the factory copies
}

TEST_F(SampleTemplatesTest, NoLinkBuys)
{
    const QRegularExpression buying(u"href=\"[^\"]*(addtoshopcart|price=)"_s);
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        EXPECT_FALSE(text->contains(buying)) << text.key().toStdString();
    }
}

// A quote in it would end the attribute.
TEST_F(SampleTemplatesTest, NoNameAndNoTextStandsInAnAttribute)
{
    static const QRegularExpression attribute(u"\\s([a-z-]+)=\"((?:<!--:.*?:-->|[^\"<])*)\""_s);
    static const QRegularExpression words(
        u"<!--:(\\w*name|PriceDescription|\\w*_TEXT|\\w*Text|tax_name|destination)[=:]"_s);
    int links = 0;
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        for (const QRegularExpressionMatch& match : attribute.globalMatch(text.value())) {
            if (!match.captured(2).contains(words)) {
                continue;
            }
            // A custom page's name alone, whose characters are those of an address.
            EXPECT_EQ(match.captured(1), u"href"_s) << text.key().toStdString() << match.captured().toStdString();
            EXPECT_TRUE(match.captured(2).contains(u"ACTION=custompage.php&amp;name=<!--:name:-->"_s));
            ++links;
        }
    }
    EXPECT_EQ(links, 8); // four menus, in the working and the factory copies
}

TEST_F(SampleTemplatesTest, EachOfTheTwoSumsSaysWhatItCounts)
{
    const auto cup = addProduct(u"6"_s, u"Cup"_s, u"20"_s, addCategory(u"2"_s, u"Cups"_s));
    addToCart(cup, u"20"_s, u"3"_s);
    templates.Path = QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/");
    templates.parseTemplates();
    const QString cart = RenderPage(context, u"cart"_s, {});
    const QString form = RenderPage(context, u"checkout"_s, {});
    EXPECT_TRUE(cart.contains(u"<span>All goods in their quantities</span> <strong>60&nbsp;"_s));
    EXPECT_TRUE(form.contains(u"<span>One of each, with tax and delivery</span> <strong>20&nbsp;"_s));
    EXPECT_TRUE(form.contains(u"Quantities are not counted here."_s));
}

TEST_F(SampleTemplatesTest, TheRecalculationEndsInItsAction)
{
    int recalculations = 0;
    for (const auto& [file, form] : forms()) {
        const QList<Field> fields = fieldsOf(form);
        if (!namesOf(fields).contains(u"recalculate"_s)) {
            continue;
        }
        ++recalculations;
        EXPECT_EQ(fields.first().name, u"recalculate"_s) << file.toStdString();
        EXPECT_EQ(fields.last().name, u"ACTION"_s) << file.toStdString();
        EXPECT_EQ(attributeOf(fields.last().tag, u"value"_s), u"checkout.php"_s) << file.toStdString();
    }
    EXPECT_EQ(recalculations, 2);
}

TEST_F(SampleTemplatesTest, EveryFileBeginsWithAVersionAndHasWholeLineEnds)
{
    for (auto text = texts.begin(); text != texts.end(); ++text) {
        EXPECT_TRUE(text->startsWith(u"<!--1.2.0-->\r\n"_s)) << text.key().toStdString();
        // A lone line feed ends no line.
        EXPECT_EQ(text->count(u'\n'), text->count(u"\r\n"_s)) << text.key().toStdString();
    }
}

TEST_F(SampleTemplatesTest, APictureIsShownWhenItHasAWidth)
{
    for (const DesignOptionRow& row : designOptionTable()) {
        design().setOption(row.option, u"Yes"_s);
    }
    const auto tea = addCategory(u"2"_s, u"Tea"_s);
    const auto green = addCategory(u"3"_s, u"Green"_s, tea);
    addCategory(u"4"_s, u"Black"_s, tea);
    addCategory(u"5"_s, u"Cups"_s);
    const auto sencha = addProduct(u"6"_s, u"Sencha"_s, u"20"_s, tea);
    const auto mix = addProduct(u"7"_s, u"Mix"_s, u"10"_s, tea);
    setPicture(*tea->selectedImage(), u"tea.png"_s, 64, 48);
    setPicture(*green->selectedImage(), u"green.png"_s, 32, 24);
    setPicture(*sencha->selectedImage(), u"sencha.png"_s, 16, 12);
    addToCart(sencha, u"20"_s, u"1"_s);
    addToCart(mix, u"10"_s, u"1"_s);
    templates.Path = QStringLiteral(TARNWICK_SOURCE_DIR "/app/templates/");
    templates.parseTemplates();
    auto results = std::make_shared<SearchResults>();
    results->products = {sencha, mix};

    EXPECT_EQ(picturesOn(u"main"_s, session.shop), QStringList{u"tea.png"_s});
    EXPECT_EQ(picturesOn(u"category"_s, tea), (QStringList{u"green.png"_s, u"sencha.png"_s}));
    EXPECT_EQ(picturesOn(u"product"_s, sencha), QStringList{u"sencha.png"_s});
    EXPECT_EQ(picturesOn(u"product"_s, mix), QStringList());
    EXPECT_EQ(picturesOn(u"search"_s, results), QStringList{u"sencha.png"_s});
    EXPECT_EQ(picturesOn(u"cart"_s, {}), QStringList{u"sencha.png"_s});
}

} // namespace
