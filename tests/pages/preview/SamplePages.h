// The fixture of the tests that look at the pages of the sample shop: each is rendered as the preview shows it.
#pragma once

#include "design/ShopDesignClass.h"
#include "model/ShopSession.h"
#include "pages/preview/PreviewNavigation.h"
#include "pages/preview/PreviewPage.h"
#include "support/TestSupport.h"
#include "template_engine/Templates_Set.h"

#include <QList>

// Keeps the document that it is shown.
class KeepingSurface : public PreviewSurface
{
public:
    bool replaceDocument(const QString& text) override
    {
        document = text;
        return true;
    }
    void goBlank() override {}

    QString document;
};

// A page with the address that leads to it, without the server's.
struct SamplePage
{
    QString query;
    QString document;
};

class SamplePages : public testing::Test
{
protected:
    SamplePages();

    ShopDesignClass& design() { return *session.shop->ShopDesign; }
    void setEverySwitch(const QString& word);
    // Makes every button and the logo an image, or a text.
    void setEverySlot(ImageSelection type);

    SamplePage page(const QString& query);
    // All pages: every category, product and custom page, searches with and without a hit, the cart empty and full, and
    // the buying form before and after a recalculation.
    QList<SamplePage> everyPage();

    TemporaryShopFolder files;
    RecordingPrompts prompts;
    FixedClock clock{QDate(2026, 7, 15)};
    ShopSession session{files.folder(), prompts, clock};
    Templates_Set templates{session.folder, session.log, shopTemplateNames()};
    KeepingSurface surface;
    PreviewPage preview{session, templates, surface};
    PreviewNavigation navigation{session, preview};
};
