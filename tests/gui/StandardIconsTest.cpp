// The pictures of the toolkit's dialogs are the program's own, and stand out on any ground.
#include "PaintedTexts.h"
#include "look/ShopStyle.h"
#include "look/Tones.h"
#include "support/TestSupport.h"

#include <QImage>
#include <QPainter>

#include <algorithm>
#include <gtest/gtest.h>
#include <memory>

using namespace Qt::StringLiterals;

namespace {

constexpr QStyle::StandardPixmap shownPictures[] = {
    QStyle::SP_MessageBoxInformation,
    QStyle::SP_MessageBoxQuestion,
    QStyle::SP_MessageBoxWarning,
    QStyle::SP_MessageBoxCritical,
    QStyle::SP_ArrowBack,
    QStyle::SP_ArrowForward,
    QStyle::SP_FileDialogToParent,
    QStyle::SP_FileDialogNewFolder,
    QStyle::SP_FileDialogListView,
    QStyle::SP_FileDialogDetailedView,
    QStyle::SP_DirIcon,
    QStyle::SP_DirOpenIcon,
    QStyle::SP_DirClosedIcon,
    QStyle::SP_DirLinkIcon,
    QStyle::SP_DirHomeIcon,
    QStyle::SP_FileIcon,
    QStyle::SP_FileLinkIcon,
    QStyle::SP_ComputerIcon,
    QStyle::SP_DesktopIcon,
    QStyle::SP_DriveHDIcon,
    QStyle::SP_DriveNetIcon,
};

class StandardIcons : public testing::TestWithParam<QStyle::StandardPixmap>
{
protected:
    // The picture on a ground, 32 pixels wide and high.
    static QImage painted(const QStyle& style, const QColor& ground)
    {
        QImage image(32, 32, QImage::Format_RGB32);
        image.fill(ground);
        QPainter painter(&image);
        style.standardIcon(GetParam()).paint(&painter, image.rect());
        return image;
    }
    // How many pixels stand out from the ground as a mark of state has to.
    static int ink(const QImage& image, const QColor& ground)
    {
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                count += contrastBetween(image.pixelColor(x, y), ground) >= 3 ? 1 : 0;
            }
        }
        return count;
    }

    const std::unique_ptr<QStyle> style{newShopStyle()};
};

INSTANTIATE_TEST_SUITE_P(All, StandardIcons, testing::ValuesIn(shownPictures));

TEST_P(StandardIcons, StandOutOnTheGroundsOfBothSchemes)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        for (const Tone place : {Tone::Ground, Tone::Field, Tone::Soft, Tone::Hover}) {
            const QColor ground = toneIn(scheme, place);
            EXPECT_GE(ink(painted(*style, ground), ground), 40) << ground.name().toStdString();
        }
    }
}

TEST_P(StandardIcons, AreNotTheToolkitsOwn)
{
    const QProxyStyle toolkit(u"Fusion"_s);
    EXPECT_NE(painted(*style, Qt::white), painted(toolkit, Qt::white));
}

} // namespace
