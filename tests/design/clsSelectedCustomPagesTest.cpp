#include "design/clsSelectedCustomPages.h"

#include "DesignFixture.h"

using namespace Qt::StringLiterals;

namespace {

class SelectedCustomPages : public DesignFixture
{
protected:
    QStringList names() const
    {
        QStringList list;
        for (const QString& name : selection.selectedPages()) {
            list.append(name);
        }
        return list;
    }

    int read(const QByteArray& xml)
    {
        return errorOf([&] { selection.FromXML(element(xml)); });
    }

    clsSelectedCustomPages selection{services, u"MENU"_s};
};

TEST_F(SelectedCustomPages, NamesKeepTheirOrderAndEachIsItsOwnKey)
{
    selection.Add(u"Home page"_s);
    selection.Add(u"About"_s);
    EXPECT_EQ(names(), (QStringList{u"Home page"_s, u"About"_s}));
    EXPECT_EQ(selection.selectedPages().Item(u"About"_s), u"About"_s);
    selection.Clear();
    EXPECT_EQ(names(), QStringList());
}

TEST_F(SelectedCustomPages, ANameCannotStandTwice)
{
    selection.Add(u"About"_s);
    EXPECT_EQ(errorOf([&] { selection.Add(u"About"_s); }), 457);
    EXPECT_EQ(names(), QStringList{u"About"_s});
}

TEST_F(SelectedCustomPages, TheSelectionIsWrittenAndReadBackInOrder)
{
    selection.Add(u"Home page"_s);
    selection.Add(u"About"_s);
    const QByteArray xml = written(selection);
    EXPECT_EQ(xml, "<X><MENU><PAGES><SelectedPage>Home page</SelectedPage></PAGES>"
                   "<PAGES><SelectedPage>About</SelectedPage></PAGES></MENU></X>");
    selection.Add(u"dropped by the reading"_s);
    EXPECT_EQ(read(xml), 0);
    EXPECT_EQ(names(), (QStringList{u"Home page"_s, u"About"_s}));
}

TEST_F(SelectedCustomPages, AnEmptySelectionIsAnEmptyElement)
{
    EXPECT_EQ(written(selection), "<X><MENU/></X>");
}

TEST_F(SelectedCustomPages, WithoutItsElementTheSelectionIsEmpty)
{
    selection.Add(u"old"_s);
    EXPECT_EQ(read("<X><OTHER/></X>"), 0);
    EXPECT_EQ(names(), QStringList());
}

TEST_F(SelectedCustomPages, TheFirstElementAtAnyDepthCounts)
{
    EXPECT_EQ(read("<X><A><MENU><P><S>one</S></P></MENU></A><MENU><P><S>two</S></P></MENU></X>"), 0);
    EXPECT_EQ(names(), QStringList{u"one"_s});
}

TEST_F(SelectedCustomPages, TheFirstChildOfEachRowCountsWhateverTheNames)
{
    EXPECT_EQ(read("<X><MENU><P><S>one</S><T>not this</T></P><Q><U><V>tw</V>o</U></Q><R>three</R></MENU></X>"), 0);
    EXPECT_EQ(names(), (QStringList{u"one"_s, u"two"_s, u"three"_s}));
}

TEST_F(SelectedCustomPages, ARowWithoutAChildIsError91AndTheNamesBeforeItStay)
{
    EXPECT_EQ(read("<X><MENU><P><S>one</S></P><P/></MENU></X>"), 91);
    EXPECT_EQ(names(), QStringList{u"one"_s});
}

TEST_F(SelectedCustomPages, ATextBesideTheRowsIsARowWithoutAChild)
{
    EXPECT_EQ(read("<X><MENU>text<P><S>one</S></P></MENU></X>"), 91);
    EXPECT_EQ(read("<X><MENU><P><S>one</S></P>text</MENU></X>"), 91);
}

TEST_F(SelectedCustomPages, ANameThatStandsTwiceInAFileIsError457)
{
    EXPECT_EQ(read("<X><MENU><P><S>one</S></P><P><S>ONE</S></P></MENU></X>"), 457);
}

TEST_F(SelectedCustomPages, AnEmptyTagShowsABoxAndLeavesTheSelection)
{
    selection.Tag.clear();
    selection.Add(u"old"_s);
    prompts.expectMessage(u"Ambrel eCommerce Software"_s, u"You didn't type tag for one of the custom page selection"_s,
                          PromptIcon::Critical);
    EXPECT_EQ(read("<X><MENU/></X>"), 0);
    EXPECT_EQ(names(), QStringList{u"old"_s});
}

} // namespace
