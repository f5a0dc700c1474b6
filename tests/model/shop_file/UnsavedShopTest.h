// The fixture of the tests with the unsaved shop: a session that changes a shop, ends, and starts anew.
#pragma once

#include "model/ShopFixture.h"
#include "model/shop_file/UnsavedShop.h"
#include "support/RecordingFileCalls.h"

#include <QFileInfo>

// Each look at the time is as much later than the one before.
class TickingClock : public FixedClock
{
public:
    TickingClock() : FixedClock(QDate(2024, 5, 15)) {}
    qint64 steadyTime() const override
    {
        m_now += step;
        return m_now;
    }
    void pass(qint64 microseconds) { m_now += microseconds; }

    qint64 step = 0;

private:
    mutable qint64 m_now = 0;
};

class TheUnsavedShop : public ShopFixture
{
protected:
    TheUnsavedShop() { restart(); }

    // The program ends, in whatever way, and starts anew.
    void restart(UnsavedShop::Window window = UnsavedShop::Window::First)
    {
        unsaved.reset();
        next.emplace(session.folder, prompts, ticking);
        auto ownCalls = std::make_unique<RecordingFileCalls>();
        calls = ownCalls.get();
        unsaved = std::make_unique<UnsavedShop>(*next, window, std::move(ownCalls));
    }
    // As the window does: it begins to keep the shop when that was read whole.
    int open()
    {
        return errorOf([this] {
            if (loadShop(*next, unsaved.get())) {
                unsaved->begin();
            }
        });
    }
    // A shop file with these elements, read.
    void openShop(const QByteArray& elements)
    {
        writeFile(session.folder.shopFile(), shopFile(elements));
        ASSERT_EQ(open(), 0);
    }
    void save() { unsaved->shopWasSaved(writeShopFile(*next)); }

    bool isThere() const { return QFileInfo::exists(session.folder.unsavedShopFile()); }
    QByteArray bytes() const { return fileBytes(session.folder.unsavedShopFile()); }
    QByteArray aside() const { return fileBytes(session.folder.oldUnsavedShopFile()); }
    QByteArray currentText() { return shopFileBytes(*next->shop); }

    const QString title = QStringLiteral("Ambrel eCommerce Software");
    const QString question =
        QStringLiteral("The program ended before the last changes were saved. Open the shop with them?");

    TickingClock ticking;
    std::optional<ShopSession> next;
    RecordingFileCalls* calls = nullptr;
    std::unique_ptr<UnsavedShop> unsaved;
};
