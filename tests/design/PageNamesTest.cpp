// Which names of custom pages a link can carry.
#include "design/PageNames.h"

#include "support/PageNameCases.h"
#include "support/TestSupport.h"

namespace {

TEST(PageNames, AreCarriedByALinkWhenTheirCharactersAllowIt)
{
    for (const PageNameCase& row : pageNameCases()) {
        EXPECT_EQ(linkCarries(row.name), row.carried) << row.name.toStdString();
    }
}

} // namespace
