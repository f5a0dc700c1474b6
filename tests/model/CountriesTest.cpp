#include "ShopFixture.h"

using namespace Qt::StringLiterals;

namespace {

class Countries : public ShopFixture
{
protected:
    int loadCountries(const QByteArray& bytes)
    {
        writeFile(session.folder.countriesFile(), bytes);
        return errorOf([this] { EXPECT_TRUE(session.LoadCountries()); });
    }
};

TEST_F(Countries, EachNameIsItsOwnKeyInTheOrderOfTheFile)
{
    EXPECT_EQ(loadCountries("Belgium\r\nAustria\r\n"), 0);
    EXPECT_EQ(session.CountriesCollection.Count(), 2);
    EXPECT_EQ(session.CountriesCollection.Item(1), u"Belgium"_s);
    EXPECT_EQ(session.CountriesCollection.Item(u"austria"_s), u"Austria"_s);
    EXPECT_EQ(logLines(), QStringList{u"Start Function LoadCountries"_s});
}

TEST_F(Countries, AnEmptyFileGivesAnEmptyCollection)
{
    EXPECT_EQ(loadCountries(""), 0);
    EXPECT_TRUE(session.CountriesCollection.isEmpty());
}

TEST_F(Countries, BlanksAheadEmptyLinesAndTheLastLineEndMakeNoName)
{
    EXPECT_EQ(loadCountries("  Austria\r\n\r\n   \r\n\"Korea, South\"\r\nChad"), 0);
    ASSERT_EQ(session.CountriesCollection.Count(), 3);
    EXPECT_EQ(session.CountriesCollection.Item(1), u"Austria"_s);
    EXPECT_EQ(session.CountriesCollection.Item(2), u"Korea, South"_s);
    EXPECT_EQ(session.CountriesCollection.Item(3), u"Chad"_s);
}

TEST_F(Countries, AMissingFileIsError53)
{
    EXPECT_EQ(errorOf([this] { session.LoadCountries(); }), 53);
}

TEST_F(Countries, ACountryThatStandsTwiceIsError457)
{
    EXPECT_EQ(loadCountries("Chad\r\nMali\r\nCHAD\r\n"), 457);
}

} // namespace
