#include "pages/preview/PreviewUrl.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

TEST(PreviewUrl, AParameterIsFoundAsText)
{
    const struct
    {
        const char* name;
        QString text;
        QString key;
        QString value;
    } rows[] = {
        {"in the middle", u"a=1&id=22&b=3"_s, u"id"_s, u"22"_s},
        {"at the end", u"a=1&id=22"_s, u"id"_s, u"22"_s},
        {"at the start", u"id=22"_s, u"id"_s, u"22"_s},
        {"empty in the middle", u"id=&b=3"_s, u"id"_s, u""_s},
        {"empty at the end", u"id="_s, u"id"_s, u""_s},
        {"absent", u"a=1&b=3"_s, u"id"_s, u"default"_s},
        {"without an equals sign", u"id&b=3"_s, u"id"_s, u"default"_s},
        {"in another case", u"ID=22"_s, u"id"_s, u"default"_s},
        {"in a longer key", u"product_id=7"_s, u"id"_s, u"7"_s},
        {"the first of two", u"id=1&id=2"_s, u"id"_s, u"1"_s},
        {"a value with an equals sign", u"id=a=b&c"_s, u"id"_s, u"a=b"_s},
        {"in a value", u"what=id=9&id=1"_s, u"id"_s, u"9"_s},
        {"a question mark ahead", u"http://previewmode/?id=5"_s, u"id"_s, u"5"_s},
        {"an empty text", u""_s, u"id"_s, u"default"_s},
        {"an escaped and", u"id=a%26b&c=d"_s, u"id"_s, u"a%26b"_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(GetUrlParam(row.text, row.key, u"default"_s), row.value) << row.name;
    }
}

TEST(PreviewUrl, OnlyBlanksAndCommasAreDecodedAndACommaBecomesAPoint)
{
    const struct
    {
        QString text;
        QString decoded;
    } rows[] = {
        {u"a%20b%20"_s, u"a b "_s},
        {u"12%2C50"_s, u"12.50"_s},
        {u"12,50"_s, u"12,50"_s},
        {u"a+b"_s, u"a+b"_s},
        {u"%2c%2F%C3%A4"_s, u"%2c%2F%C3%A4"_s},
        {u"%2%20C"_s, u"%2 C"_s},
        {u"%%202C"_s, u"% 2C"_s},
        {u""_s, u""_s},
    };
    for (const auto& row : rows) {
        EXPECT_EQ(DecodeUrlText(row.text), row.decoded);
    }
}

} // namespace
