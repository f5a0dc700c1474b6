// What an error tells of the work in which it was raised.
#include "base/Circumstances.h"

#include "base/Dates.h"
#include "base/Numbers.h"
#include "support/TestSupport.h"

#include <functional>

using namespace Qt::StringLiterals;

namespace {

TEST(Circumstances, StandFromTheInnermostWorkOutwards)
{
    EXPECT_EQ(circumstancesOf([] {
                  during([] { return u"The page was being made."_s; },
                         [] {
                             during([] { return u"The price was being read."_s; },
                                    [] { throw RuntimeError(ErrorNumber::TypeMismatch).because(u"It is none."_s); });
                         });
              }),
              (QStringList{u"It is none."_s, u"The price was being read."_s, u"The page was being made."_s}));
}

TEST(Circumstances, AreNotLookedForWhereNothingFails)
{
    int told = 0;
    const auto tell = [&told] {
        ++told;
        return QString();
    };
    EXPECT_EQ(during(tell, [] { return 7; }), 7);
    EXPECT_EQ(told, 0);
}

TEST(Circumstances, LeaveNumberAndDescriptionAsTheyAre)
{
    const RuntimeError error = RuntimeError(ErrorNumber::FileNotFound, u"Nowhere"_s).because(u"It went."_s);
    EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
    EXPECT_EQ(error.description(), u"Nowhere"_s);
    EXPECT_STREQ(error.what(), "Nowhere");
}

struct CauseRow
{
    std::function<void()> work;
    QString cause;
};

TEST(Circumstances, TellWhichTextIsNoNumberOrDate)
{
    const CauseRow rows[] = {
        {[] { numberFromText(u"two"_s); }, u"\"two\" is no number."_s},
        {[] { numberFromText({}); }, u"\"\" is no number."_s},
        {[] { numberFromText(u"1E999"_s); }, u"\"1E999\" is too large."_s},
        {[] { dateFromLocalText(u"soon"_s); }, u"\"soon\" is no date."_s},
    };
    for (const CauseRow& row : rows) {
        EXPECT_EQ(circumstancesOf(row.work), QStringList{row.cause});
    }
}

TEST(Circumstances, QuoteATextOnOneShortLine)
{
    EXPECT_EQ(inQuotes(u"Green tea"_s), u"\"Green tea\""_s);
    EXPECT_EQ(inQuotes(u"two\r\nlines"_s), u"\"two lines\""_s);
    EXPECT_EQ(inQuotes(QString(60, u'x')), u'"' + QString(60, u'x') + u'"');
    EXPECT_EQ(inQuotes(QString(61, u'x')), u'"' + QString(60, u'x') + u"...\""_s);
    EXPECT_EQ(inQuotes(u'x' + QString(200, u' ')), u"\"x...\""_s);
}

} // namespace
