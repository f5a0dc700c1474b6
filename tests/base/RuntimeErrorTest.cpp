#include "base/RuntimeError.h"

#include "base/ProgramVersion.h"
#include "support/TestSupport.h"

using namespace Qt::StringLiterals;

TEST(RuntimeError, EveryNumberHasADescriptionOfItsOwn)
{
    const ErrorNumber numbers[] = {
        ErrorNumber::InvalidArgument,     ErrorNumber::Overflow,       ErrorNumber::OutOfMemory,
        ErrorNumber::SubscriptOutOfRange, ErrorNumber::TypeMismatch,   ErrorNumber::OutOfStackSpace,
        ErrorNumber::FileNotFound,        ErrorNumber::DeviceError,    ErrorNumber::DiskFull,
        ErrorNumber::PermissionDenied,    ErrorNumber::PathFileAccess, ErrorNumber::ObjectNotSet,
        ErrorNumber::InvalidUseOfNull,    ErrorNumber::NoSuchMember,   ErrorNumber::DuplicateKey};
    QStringList seen;
    for (const ErrorNumber number : numbers) {
        const RuntimeError error(number);
        EXPECT_EQ(error.number(), number);
        EXPECT_FALSE(error.description().isEmpty()) << static_cast<int>(number);
        EXPECT_FALSE(seen.contains(error.description())) << error.what();
        seen << error.description();
    }
    EXPECT_EQ(RuntimeError(ErrorNumber::TypeMismatch).description(), u"Type mismatch"_s);
    EXPECT_EQ(RuntimeError(ErrorNumber::Overflow).description(), u"Overflow"_s);
}

TEST(RuntimeError, ADescriptionOfItsOwnTakesTheUsualOnesPlace)
{
    const RuntimeError error(ErrorNumber::FileNotFound, u"Nowhere: \u00E4.txt"_s);
    EXPECT_EQ(static_cast<int>(error.number()), 53);
    EXPECT_EQ(error.description(), u"Nowhere: \u00E4.txt"_s);
    EXPECT_STREQ(error.what(), "Nowhere: \xC3\xA4.txt");
}

TEST(ProgramVersion, IsMajorMinorAndRevisionJoinedByPoints)
{
    EXPECT_EQ(programVersion(), u"1.2.0"_s);
}
