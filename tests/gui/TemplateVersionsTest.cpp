// The check of the templates' versions, which the program itself never runs.
#include "shell/TemplateVersions.h"

#include "support/TestSupport.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

const char* const allTemplates[] = {"header", "footer", "menu",   "main",     "product",    "category",
                                    "cart",   "search", "buying", "checkout", "custompage", "layout"};

class TemplateVersions : public testing::Test
{
protected:
    void useTemplate(const QString& name, const QByteArray& text)
    {
        writeFile(files.path(u"templates/%1.html"_s.arg(name)), text);
    }

    void expectMismatch(const QString& name)
    {
        prompts.expectMessage(u"Ambrel eCommerce Software"_s,
                              u"Application version doesn't match version of temlate '%1.html'\r\n"_s.arg(name),
                              PromptIcon::Critical);
    }

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    int closed = 0;
    std::function<void()> close = [this] { ++closed; };
};

TEST_F(TemplateVersions, AcceptTheProgramsOwn)
{
    useTemplate(u"main"_s, "<!--1.2.0-->\r\n<p>text</p>\r\n");
    EXPECT_TRUE(CheckTemplateVersion(u"main"_s, files.folder(), prompts, close));
    EXPECT_EQ(closed, 0);
}

TEST_F(TemplateVersions, ReadTheFirstFieldUpToAComma)
{
    useTemplate(u"main"_s, "<!--1.2.0-->,more\r\n");
    EXPECT_TRUE(CheckTemplateVersion(u"main"_s, files.folder(), prompts, close));
    useTemplate(u"main"_s, "\"<!--1.2.0-->\"\r\n");
    EXPECT_TRUE(CheckTemplateVersion(u"main"_s, files.folder(), prompts, close));
}

class WrongTemplateVersion : public TemplateVersions, public testing::WithParamInterface<const char*>
{
};

TEST_P(WrongTemplateVersion, IsReportedAndClosesTheWindow)
{
    useTemplate(u"main"_s, GetParam());
    expectMismatch(u"main"_s);
    EXPECT_FALSE(CheckTemplateVersion(u"main"_s, files.folder(), prompts, close));
    EXPECT_EQ(closed, 1);
}

INSTANTIATE_TEST_SUITE_P(All, WrongTemplateVersion,
                         testing::Values("<!--1.2.1-->\r\n", "<!--1.2.0 -->\r\n", "<!--1.2-->\r\n", "<p>", ""));

TEST_F(TemplateVersions, AreCheckedForAllTwelve)
{
    for (const char* name : allTemplates) {
        useTemplate(QLatin1String(name), "<!--1.1.0-->\r\n");
        expectMismatch(QLatin1String(name));
    }
    CheckAllTemplateVersions(files.folder(), prompts, close);
    EXPECT_EQ(closed, 12);
}

TEST_F(TemplateVersions, OfAMissingTemplateAreAnError)
{
    EXPECT_EQ(errorOf([&] { CheckTemplateVersion(u"main"_s, files.folder(), prompts, close); }), 53);
}

} // namespace
