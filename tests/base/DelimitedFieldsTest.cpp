#include "base/DelimitedFields.h"

#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

namespace {

TEST(DelimitedFields, EndAtCommasAndLineEnds)
{
    struct Row
    {
        QString text;
        QStringList fields;
    };
    const QList<Row> rows = {
        {QString(), {}},
        {u"\r\n\r\n"_s, {}},
        {u"  \r\n"_s, {}},
        {u"Austria"_s, {u"Austria"_s}},
        {u"Austria\r\nBelgium\r\n"_s, {u"Austria"_s, u"Belgium"_s}},
        {u"Austria\nBelgium"_s, {u"Austria"_s, u"Belgium"_s}},
        {u"Austria\r\n\r\nBelgium"_s, {u"Austria"_s, u"Belgium"_s}},
        {u"Austria,Belgium\r\nChad"_s, {u"Austria"_s, u"Belgium"_s, u"Chad"_s}},
        {u"  Austria,  Belgium"_s, {u"Austria"_s, u"Belgium"_s}},
        {u"\"Korea, South\",Chad"_s, {u"Korea, South"_s, u"Chad"_s}},
        {u"\"Korea, South\"\r\n\"Chad\"\r\n"_s, {u"Korea, South"_s, u"Chad"_s}},
        {u" \"Chad\" , Mali"_s, {u"Chad"_s, u"Mali"_s}},
        {u"\"open, end"_s, {u"open, end"_s}},
        {u"Sri Lanka"_s, {u"Sri Lanka"_s}},
        {u"\u00D6sterreich"_s, {u"\u00D6sterreich"_s}},
    };
    for (const Row& row : rows) {
        EXPECT_EQ(delimitedFields(row.text), row.fields) << row.text.toStdString();
    }
}

} // namespace
