#include "OddTexts.h"

#include <array>

using namespace Qt::StringLiterals;

namespace {

constexpr std::array texts{
    "",
    " ",
    "   ",
    "a",
    "Tea",
    "0",
    "1",
    "-1",
    "5",
    "100",
    "101",
    "12.5",
    "12,5",
    "1.234,5",
    "1,234.5",
    "1e5",
    "1E39",
    "1e308",
    "1e309",
    "-1e309",
    "nan",
    "inf",
    "0x10",
    "32767",
    "32768",
    "-32769",
    "65536",
    "2147483647",
    "2147483648",
    "99999999999999999999",
    "0.005",
    ".",
    ",",
    "-",
    "1/1/2026",
    "31.12.2026",
    "12/31/26",
    "29.02.2025",
    "01.01.1900",
    "01.01.5100",
    "99.99.9999",
    "Yes",
    "No",
    "True",
    "ID1",
    "ID_SHOP",
    "HUERAGA",
    "UNDEFINED_PRODUCT_NAME",
    "Home page",
    "Home Page",
    "Shopping cart page",
    "New Category",
    "main",
    "layout",
    "HEADER",
    "<b>bold</b>",
    "<",
    "</Shop>",
    "&amp;",
    "]]>",
    "\"",
    "'",
    "\\",
    "a\\b\\c",
    "../../x",
    "/",
    "C:\\x.png",
    "a,b",
    "a|b",
    "a:b",
    "%41%2C%20",
    "a&b=c",
    "#",
    "?",
    "<!--:shop_name:-->",
    "<!--:cycle:products:-->",
    "<!--:end:products:-->",
    "<!--:if:a:b:-->",
    "<!--:",
    ":-->",
    "<!--:a:b:c:d:e:-->",
    "#FF0000",
    "#12345",
    "#GGGGGG",
    "red",
    "url(x)",
    "expression(1)",
    "}",
    "{",
    ";",
    "\t",
    "\n",
    "a\r\nb",
    "\x01",
    "\xC3\xBC\xE2\x82\xAC",
    "\xC3\x9F",
    "\xC4\xB0",
    "\xF0\x9F\x8D\xB5",
    "e\xCC\x81",
    "\xE2\x80\xAE"
    "abc",
    "\xEF\xBB\xBF",
    "\xEF\xBF\xBF",
    "\xD7\xA9\xD7\x9C\xD7\x95\xD7\x9D",
};

constexpr std::array addresses{
    "MAINPAGE",
    "",
    "ACTION=category.php&id=%1",
    "ACTION=product.php&id=%1",
    "?addtoshopcart=&product_id=%1&price=%2&quantity=%3",
    "?ACTION=shopcart.php&product_id=%1&product_price=%2&quantity=%3",
    "ACTION=shopcart.php",
    "?ACTION=search.php&where=0&what=%2",
    "ACTION=custompage.php&name=%2",
    "?ACTION=checkout.php",
    "?recalculate=1&tax=%2&charge=%3&ACTION=checkout.php",
    "ACTION=order.php&id=%1",
};

} // namespace

QString oddText(Dice& dice)
{
    QString text = QString::fromUtf8(dice.pick(texts));
    switch (dice.below(40)) {
    case 0:
        return text.repeated(300);
    case 1:
        return QString(20000, u'x');
    case 2:
    case 3:
        return text + QString::fromUtf8(dice.pick(texts));
    case 4:
        return u"<!--:cycle:%1:-->%2<!--:end:%1:-->"_s.arg(text, QString::fromUtf8(dice.pick(texts)));
    default:
        return text;
    }
}

QString oddAddress(Dice& dice)
{
    const QString id = dice.chance(80) ? QString::number(dice.below(60)) : oddText(dice);
    const QString first = oddText(dice);
    const QString second = dice.chance(50) ? QString::number(dice.below(9)) : oddText(dice);
    return u"http://previewmode/"_s + QString::fromUtf8(dice.pick(addresses))
                                          .replace(u"%1"_s, id)
                                          .replace(u"%2"_s, first)
                                          .replace(u"%3"_s, second);
}

QByteArray oddImportFile(Dice& dice)
{
    QString lines;
    for (int count = dice.below(30); count >= 0; --count) {
        QString path = oddText(dice).left(100).remove(u'\n');
        for (int levels = dice.below(4); levels > 0; --levels) {
            path += u'\\' + (dice.chance(50) ? u"Tea"_s : oddText(dice).left(20));
        }
        if (dice.chance(1)) {
            path = u"deep\\"_s.repeated(520);
        }
        lines += u"%1,\"%2\",%3\n"_s.arg(oddText(dice).left(100), oddText(dice).left(200), path);
    }
    return dice.chance(80) ? lines.toUtf8() : lines.toLatin1();
}
