#include "base/TextFile.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

TEST(TextFile, ValidUtf8IsReadAsSuch)
{
    const DecodedText decoded = decodeText("M\xC3\xBCll \xE2\x82\xAC \xF0\x9F\x98\x80");
    EXPECT_EQ(decoded.text, u"M\u00FCll \u20AC \U0001F600"_s);
    EXPECT_EQ(decoded.encoding, TextEncoding::Utf8);
    EXPECT_EQ(decodeText("plain").encoding, TextEncoding::Utf8);
    EXPECT_EQ(decodeText("").text, QString());
    EXPECT_EQ(decodeText(QByteArray("a\0b", 3)).text, QString(u"a"_s + QChar(0) + u"b"_s));
}

TEST(TextFile, OneByteOrderMarkIsDropped)
{
    EXPECT_EQ(decodeText("\xEF\xBB\xBFtext").text, u"text"_s);
    EXPECT_EQ(decodeText("\xEF\xBB\xBF").text, QString());
    EXPECT_EQ(decodeText("\xEF\xBB\xBF\xEF\xBB\xBFx").text, u"\uFEFFx"_s);
    EXPECT_EQ(decodeText("a\xEF\xBB\xBF").text, u"a\uFEFF"_s);
}

TEST(TextFile, WhatIsNotUtf8IsWindows1252)
{
    const QByteArray invalid[] = {
        "\x80",             // a continuation byte alone
        "\xC3",             // cut off
        "\xC3(",            // not continued
        "\xC0\xAF",         // overlong
        "\xC1\xBF",         // overlong
        "\xE0\x9F\xBF",     // overlong
        "\xF0\x8F\xBF\xBF", // overlong
        "\xED\xA0\x80",     // a surrogate
        "\xED\xBF\xBF",     // a surrogate
        "\xF4\x90\x80\x80", // past U+10FFFF
        "\xF5\x80\x80\x80",
        "\xFE",
        "\xFF",
        "\xE2\x82",
        "\xF0\x9F\x98",
        "\xE2(\xAC",
        "\xF0\x9F(\x80",
    };
    for (const QByteArray& bytes : invalid) {
        for (const QByteArray& text : {bytes, QByteArray("some eight letters " + bytes), QByteArray(bytes + " text")}) {
            const DecodedText decoded = decodeText(text);
            EXPECT_EQ(decoded.encoding, TextEncoding::Windows1252) << text.toHex().toStdString();
            EXPECT_EQ(decoded.text.size(), text.size());
        }
    }
    const QByteArray valid[] = {"\xC2\x80",     "\xDF\xBF",     "\xE0\xA0\x80",     "\xED\x9F\xBF",
                                "\xEE\x80\x80", "\xEF\xBF\xBF", "\xF0\x90\x80\x80", "\xF4\x8F\xBF\xBF"};
    for (const QByteArray& bytes : valid) {
        EXPECT_EQ(decodeText(bytes).encoding, TextEncoding::Utf8) << bytes.toHex().toStdString();
    }
}

TEST(TextFile, EveryByteOfWindows1252HasItsLetter)
{
    EXPECT_EQ(decodeText("M\xFCll \x80 \x93x\x94 \x9F").text, u"M\u00FCll \u20AC \u201Cx\u201D \u0178"_s);
    EXPECT_EQ(decodeText("\x81\x8D\x8F\x90\x9D\xFF").text, u"\u0081\u008D\u008F\u0090\u009D\u00FF"_s);
}

TEST(TextFile, NoByteOfWindows1252IsLost)
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i) {
        bytes.append(static_cast<char>(i));
    }
    const DecodedText decoded = decodeText(bytes);
    ASSERT_EQ(decoded.encoding, TextEncoding::Windows1252);
    ASSERT_EQ(decoded.text.size(), 256);
    EXPECT_EQ(encodeText(decoded.text, decoded.encoding), bytes);
    for (const QChar letter : decoded.text) {
        EXPECT_EQ(decoded.text.count(letter), 1);
    }
}

TEST(TextFile, ATextThatWindows1252CannotHoldIsWrittenInUtf8)
{
    EXPECT_EQ(encodeText(u"\u00FC\u20AC"_s, TextEncoding::Windows1252), "\xFC\x80");
    EXPECT_EQ(encodeText(u"\u00FC\u0436"_s, TextEncoding::Windows1252), "\xC3\xBC\xD0\xB6");
    EXPECT_EQ(encodeText(u"\u00FC\u20AC"_s, TextEncoding::Utf8), "\xC3\xBC\xE2\x82\xAC");
}

TEST(TextFile, ATextWhoseBytesInWindows1252WouldReadAsAnotherTextIsWrittenInUtf8)
{
    const QString texts[] = {
        u"\u00C3\u00A9"_s, // C3 A9, an "e" with an accent in UTF-8
        u"caf\u00C3\u00A9 \u00E2\u201A\u00AC"_s,
        u"\u00EF\u00BB\u00BFtext"_s, // a byte order mark, which would be dropped
        u"\u00C3\u00A9 \u00E9"_s,    // E9 at the end is no UTF-8, so one byte each
        u"plain"_s,
        u""_s,
    };
    for (const QString& text : texts) {
        EXPECT_EQ(decodeText(encodeText(text, TextEncoding::Windows1252)).text, text);
    }
    EXPECT_EQ(encodeText(texts[0], TextEncoding::Windows1252), "\xC3\x83\xC2\xA9");
    EXPECT_EQ(encodeText(texts[3], TextEncoding::Windows1252), "\xC3\xA9 \xE9");
}

TEST(TextFile, AFileIsReadAndDecoded)
{
    const TemporaryShopFolder shop;
    writeFile(shop.path(u"text"_s), "\xEF\xBB\xBF\xC3\xBC\r\n");
    EXPECT_EQ(readTextFile(shop.path(u"text"_s)).text, u"\u00FC\r\n"_s);
    EXPECT_EQ(errorOf([&] { readTextFile(shop.path(u"gone"_s)); }), 53);
    EXPECT_EQ(errorOf([] { readTextFile(u"/dev/zero"_s); }), 75);
}
