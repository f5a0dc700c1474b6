// What the style paints, on plain controls: edges at any scale of the screen, room for letters, and what is off.
#include "look/Theme.h"
#include "look/Tones.h"
#include "support/TestSupport.h"

#include <QApplication>
#include <QComboBox>
#include <QFrame>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPainter>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QStyleOption>
#include <QTableWidget>
#include <QTreeWidget>

#include <functional>

using namespace Qt::StringLiterals;

namespace {

// The widget as a screen with that many pixels to one of the window shows it.
QImage shown(QWidget& widget, double scale)
{
    QImage image((QSizeF(widget.size()) * scale).toSize(), QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    widget.render(&image);
    return image;
}

struct Control
{
    const char* name;
    std::function<QWidget*(QWidget*)> make;
    Tone edge;
};

const Control controls[] = {
    {"line of text", [](QWidget* parent) { return new QLineEdit(parent); }, Tone::Edge},
    {"text area", [](QWidget* parent) { return new QPlainTextEdit(parent); }, Tone::Edge},
    {"list", [](QWidget* parent) { return new QListWidget(parent); }, Tone::Edge},
    {"grid", [](QWidget* parent) { return new QTableWidget(parent); }, Tone::Edge},
    {"choice", [](QWidget* parent) { return new QComboBox(parent); }, Tone::Edge},
    {"number", [](QWidget* parent) { return new QSpinBox(parent); }, Tone::Edge},
    {"button", [](QWidget* parent) { return new QPushButton(parent); }, Tone::ButtonLine},
    {"picture",
     [](QWidget* parent) {
         auto* frame = new QFrame(parent);
         frame->setFrameShape(QFrame::StyledPanel);
         return frame;
     },
     Tone::Line},
};

class Style : public testing::TestWithParam<Control>
{
protected:
    void TearDown() override { showScheme(Scheme::Light); }
};

INSTANTIATE_TEST_SUITE_P(Controls, Style, testing::ValuesIn(controls), [](const auto& row) {
    return QString::fromLatin1(row.param.name).replace(u' ', u'_').toStdString();
});

TEST_P(Style, KeepsAllFourEdgesAtAnyScaleAndPlace)
{
    QWidget window;
    window.resize(140, 100);
    QWidget* control = GetParam().make(&window);
    control->resize(81, 41);
    window.show();
    const QColor edge = tone(GetParam().edge);
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        for (const QPoint& place : {QPoint(10, 10), QPoint(11, 11), QPoint(12, 13), QPoint(13, 14)}) {
            control->move(place);
            const QImage image = shown(window, scale);
            // Across each edge, from two pixels outside to three inside, a pixel has the edge's full colour.
            const auto hasEdge = [&](const QPointF& middle, const QPoint& inward) {
                const QPoint from = (middle * scale).toPoint();
                for (int step = -2; step <= 3; ++step) {
                    if (image.pixelColor(from + step * inward) == edge) {
                        return true;
                    }
                }
                return false;
            };
            const QRectF room(place, control->size());
            const QPointF middle = room.center();
            EXPECT_TRUE(hasEdge({room.left(), middle.y()}, {1, 0})) << "left at " << scale << ", " << place.x();
            EXPECT_TRUE(hasEdge({middle.x(), room.top()}, {0, 1})) << "top at " << scale << ", " << place.y();
            EXPECT_TRUE(hasEdge({room.right(), middle.y()}, {-1, 0})) << "right at " << scale << ", " << place.x();
            EXPECT_TRUE(hasEdge({middle.x(), room.bottom()}, {0, -1})) << "bottom at " << scale << ", " << place.y();
        }
    }
}

TEST_P(Style, TakesTheGroundAndTheEdgeFromWhatIsOff)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QWidget window;
        window.resize(140, 100);
        QWidget* control = GetParam().make(&window);
        control->setGeometry(20, 20, 80, 40);
        control->setFocusPolicy(Qt::NoFocus);
        window.show();
        QCoreApplication::processEvents();
        const QImage on = shown(window, 1);
        control->setEnabled(false);
        const QImage off = shown(window, 1);
        const QPoint inside(50, 50); // where no text stands
        const QPoint left(20, 40);
        if (GetParam().edge == Tone::Edge) {
            EXPECT_EQ(on.pixelColor(inside), tone(Tone::Field));
            EXPECT_EQ(off.pixelColor(inside), tone(Tone::FieldOff));
            EXPECT_EQ(on.pixelColor(left), tone(Tone::Edge));
            EXPECT_EQ(off.pixelColor(left), tone(Tone::EdgeOff));
        } else if (GetParam().edge == Tone::ButtonLine) {
            EXPECT_EQ(on.pixelColor(inside), tone(Tone::Button));
            EXPECT_EQ(off.pixelColor(inside), tone(Tone::Ground));
            EXPECT_EQ(off.pixelColor(left), tone(Tone::EdgeOff));
        }
    }
}

// So that the ring shows on it, too: a date field is white in the dark look.
TEST(StyleOfFields, DrawsTheRingOfTheFocusInTheAccentThatGoesWithTheFieldsOwnGround)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QWidget window;
        window.resize(140, 100);
        auto* field = new QLineEdit(&window);
        field->setGeometry(20, 20, 80, 40);
        window.show();
        window.activateWindow();
        QCoreApplication::processEvents();
        ASSERT_TRUE(field->hasFocus());
        const auto ring = [&window] { return shown(window, 1).pixelColor(21, 40); };
        EXPECT_EQ(ring(), toneIn(scheme, Tone::Accent));
        for (const Tone ground : {Tone::DateInUse, Tone::DateOff}) {
            QPalette colours = field->palette();
            colours.setColor(QPalette::Base, tone(ground));
            field->setPalette(colours);
            EXPECT_EQ(ring(), toneIn(Scheme::Light, Tone::Accent));
        }
    }
    showScheme(Scheme::Light);
}

// How many rows of pixels hold ink of that colour, or close to it.
int inkRows(const QImage& image, const QRect& room, const QColor& ground)
{
    int rows = 0;
    for (int y = room.top(); y <= room.bottom(); ++y) {
        for (int x = room.left(); x <= room.right(); ++x) {
            if (qAbs(image.pixelColor(x, y).lightness() - ground.lightness()) > 60) {
                ++rows;
                break;
            }
        }
    }
    return rows;
}

TEST(StyleOfRows, LeavesRoomForTheHighestLettersInEveryFontAndScale)
{
    const QString word = u"ÜÅgjÇ"_s;
    for (const double points : {7.0, 9.0, 13.0, 20.0}) {
        QFont font = QApplication::font();
        font.setPointSizeF(points);
        for (const double scale : {1.0, 1.5}) {
            SCOPED_TRACE(points);
            QLabel plain(word);
            plain.setFont(font);
            plain.setAlignment(Qt::AlignCenter);
            plain.resize(400, 200);
            plain.show();
            const QImage whole = shown(plain, scale);
            const int expected = inkRows(whole, whole.rect(), tone(Tone::Ground));
            ASSERT_GT(expected, points);

            QListWidget list;
            QTreeWidget tree;
            QTableWidget grid(3, 1);
            for (int row = 0; row < 3; ++row) { // between two empty rows
                list.addItem(row == 1 ? word : QString());
                tree.addTopLevelItem(new QTreeWidgetItem(QStringList(row == 1 ? word : QString())));
                grid.setItem(row, 0, new QTableWidgetItem(row == 1 ? word : QString()));
            }
            for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{&list, &tree, &grid}) {
                SCOPED_TRACE(view->metaObject()->className());
                view->setFont(font);
                view->setFocusPolicy(Qt::NoFocus);
                if (view == &grid) {
                    grid.setColumnWidth(0, 350);
                    grid.resizeRowsToContents();
                }
                view->resize(400, 400);
                view->show();
                QCoreApplication::processEvents();
                const QRect row = view->visualRect(view->model()->index(1, 0));
                const QImage image = shown(*view->viewport(), scale);
                const QRect pixels =
                    QRectF(row.left() * scale, row.top() * scale, row.width() * scale, row.height() * scale)
                        .toAlignedRect()
                        .adjusted(0, 0, 0, view == &grid ? -2 : 0); // without its hairline
                EXPECT_GE(inkRows(image, pixels & image.rect(), tone(Tone::Field)), expected) << row.height();
            }
        }
    }
}

TEST(StyleOfHeaders, PutsATitleInTheMiddleOfItsHeightThoughTheViewAsksForNone)
{
    const auto firstInk = [](Qt::Alignment alignment) {
        QTableWidget grid(1, 1);
        grid.setHorizontalHeaderLabels({u"HHH"_s});
        grid.horizontalHeader()->setDefaultAlignment(alignment);
        grid.horizontalHeader()->setFixedHeight(60);
        grid.resize(200, 200);
        grid.show();
        const QImage image = shown(*grid.horizontalHeader()->viewport(), 1);
        int row = 0;
        while (row < 60 && inkRows(image, QRect(0, row, 90, 1), tone(Tone::Header)) == 0) {
            ++row;
        }
        return row;
    };
    const int middle = firstInk(Qt::AlignLeft | Qt::AlignVCenter);
    EXPECT_GT(middle, 15);
    EXPECT_LT(middle, 35);
    EXPECT_EQ(firstInk(Qt::AlignLeft), middle);
}

TEST(StyleOfBars, PaintsAPaleThumbBesideAListThatIsOff)
{
    for (const Scheme scheme : {Scheme::Light, Scheme::Dark}) {
        showScheme(scheme);
        QListWidget list;
        for (int row = 0; row < 40; ++row) {
            list.addItem(QString::number(row));
        }
        list.resize(120, 120);
        list.show();
        QCoreApplication::processEvents();
        const auto thumb = [&] {
            const QScrollBar* bar = list.verticalScrollBar();
            return shown(list, 1).pixelColor(bar->mapTo(&list, QPoint(bar->width() / 2, 12)));
        };
        EXPECT_EQ(thumb(), tone(Tone::Edge));
        list.setEnabled(false);
        EXPECT_EQ(thumb(), tone(Tone::EdgeOff));
    }
    showScheme(Scheme::Light);
}

TEST(StyleOfHeaders, DrawsTheHairlineBesideTheLastColumnToo)
{
    QTableWidget grid(1, 1);
    grid.setColumnWidth(0, 60);
    grid.verticalHeader()->hide();
    grid.resize(300, 100);
    grid.show();
    QCoreApplication::processEvents();
    const QWidget* header = grid.horizontalHeader()->viewport();
    const QImage image = shown(*grid.horizontalHeader()->viewport(), 1);
    for (const int x : {30, 200}) {
        EXPECT_EQ(image.pixelColor(x, header->height() - 1), tone(Tone::Line)) << x;
        EXPECT_EQ(image.pixelColor(x, 2), tone(Tone::Header)) << x;
    }
}

TEST(StyleOfMenus, KeepsAWholeEdgeAroundTheEntriesAtAnyScale)
{
    QMenu menu;
    menu.addAction(u"One"_s);
    menu.addSeparator();
    menu.addAction(u"Another"_s);
    menu.popup(QPoint());
    QCoreApplication::processEvents();
    for (const double scale : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const QImage image = shown(menu, scale);
        const QRect inside = image.rect().marginsRemoved(QMargins(1, 1, 1, 1) * qRound(scale));
        int others = 0; // pixels of the edge in another colour
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                others += !inside.contains(x, y) && image.pixelColor(x, y) != tone(Tone::Edge) ? 1 : 0;
            }
        }
        EXPECT_EQ(others, 0) << scale;
    }
    menu.hide();
}

// What the style paints for an option, on the ground of the window.
QImage paintedAs(QStyle::PrimitiveElement element, const QStyleOption& option)
{
    QImage image(option.rect.size(), QImage::Format_RGB32);
    image.fill(tone(Tone::Ground));
    QPainter painter(&image);
    QApplication::style()->drawPrimitive(element, &option, &painter);
    return image;
}

TEST(StyleOfArrows, PointWhereTheyLead)
{
    QStyleOption option;
    option.rect = QRect(0, 0, 21, 21);
    // How much further down the tip in the middle is than the arm beside it, in pixels.
    const auto tipBelowArm = [](const QImage& image) {
        const auto firstInk = [&](int x) {
            int y = 0;
            while (y < image.height() && inkRows(image, QRect(x, y, 1, 1), tone(Tone::Ground)) == 0) {
                ++y;
            }
            return y;
        };
        return firstInk(10) - firstInk(7);
    };
    const QTransform turn = QTransform().rotate(90);
    EXPECT_LT(tipBelowArm(paintedAs(QStyle::PE_IndicatorArrowUp, option)), -1);
    EXPECT_GT(tipBelowArm(paintedAs(QStyle::PE_IndicatorArrowDown, option)), 1);
    EXPECT_LT(tipBelowArm(paintedAs(QStyle::PE_IndicatorArrowLeft, option).transformed(turn)), -1);
    EXPECT_GT(tipBelowArm(paintedAs(QStyle::PE_IndicatorArrowRight, option).transformed(turn)), 1);
}

TEST(StyleOfButtons, HasGroundsForAToolButtonThatIsHeldDownOrUnderTheMouse)
{
    QStyleOption option;
    option.rect = QRect(0, 0, 30, 30);
    const auto ground = [&](QStyle::State state) {
        option.state = state;
        return paintedAs(QStyle::PE_PanelButtonTool, option).pixelColor(15, 15);
    };
    EXPECT_EQ(ground(QStyle::State_Enabled), tone(Tone::Ground));
    EXPECT_EQ(ground(QStyle::State_Enabled | QStyle::State_Sunken), tone(Tone::Pressed));
    EXPECT_EQ(ground(QStyle::State_Enabled | QStyle::State_On), tone(Tone::Pressed));
    EXPECT_EQ(ground(QStyle::State_Enabled | QStyle::State_MouseOver), tone(Tone::Hover));
    EXPECT_EQ(ground(QStyle::State_MouseOver), tone(Tone::Ground));
}

TEST(StyleOfCheckBoxes, MarksOneThatIsPartlyOnWithABar)
{
    QStyleOption option;
    option.rect = QRect(0, 0, 16, 16);
    const auto middle = [&](QStyle::State state) {
        option.state = QStyle::State_Enabled | state;
        const QImage image = paintedAs(QStyle::PE_IndicatorCheckBox, option);
        return std::pair(image.pixelColor(8, 8), image.pixelColor(3, 12));
    };
    EXPECT_EQ(middle(QStyle::State_NoChange), std::pair(tone(Tone::OnAccent), tone(Tone::Accent)));
    EXPECT_EQ(middle(QStyle::State_Off), std::pair(tone(Tone::Field), tone(Tone::Field)));
}

TEST(StyleOfBars, PartsTheGrooveIntoTheThumbAndWhatLiesBeforeAndBehindIt)
{
    QScrollBar bar(Qt::Vertical);
    bar.setRange(0, 100);
    bar.setPageStep(50);
    bar.setValue(50);
    bar.resize(10, 300);
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.minimum = bar.minimum();
    option.maximum = bar.maximum();
    option.pageStep = bar.pageStep();
    option.sliderPosition = bar.value();
    option.sliderValue = bar.value();
    option.orientation = Qt::Vertical;
    const auto part = [&](QStyle::SubControl name) {
        return QApplication::style()->subControlRect(QStyle::CC_ScrollBar, &option, name, &bar);
    };
    const QRect groove = part(QStyle::SC_ScrollBarGroove);
    const QRect before = part(QStyle::SC_ScrollBarSubPage);
    const QRect thumb = part(QStyle::SC_ScrollBarSlider);
    const QRect behind = part(QStyle::SC_ScrollBarAddPage);
    EXPECT_EQ(groove, bar.rect());
    EXPECT_EQ(before.top(), groove.top());
    EXPECT_EQ(thumb.top(), before.bottom() + 1);
    EXPECT_EQ(behind.top(), thumb.bottom() + 1);
    EXPECT_EQ(behind.bottom(), groove.bottom());
    EXPECT_EQ(before.height(), behind.height()); // it stands in the middle
    EXPECT_TRUE(part(QStyle::SC_ScrollBarAddLine).isEmpty());
}

TEST(StyleOfMenus, ShowsTicksPicturesAndTheAnglesOfSubMenus)
{
    QPixmap picture(16, 16);
    picture.fill(tone(Tone::Error));
    QMenu menu;
    QAction* plain = menu.addAction(u"Plain"_s);
    QAction* ticked = menu.addAction(u"Ticked"_s);
    ticked->setCheckable(true);
    ticked->setChecked(true);
    QAction* pictured = menu.addAction(QIcon(picture), u"Pictured"_s);
    QAction* leading = menu.addMenu(u"Leading"_s)->menuAction();
    menu.popup(QPoint());
    QCoreApplication::processEvents();
    const QImage image = shown(menu, 1);
    const auto ink = [&](QAction* action, bool isAhead) {
        const QRect place = menu.actionGeometry(action).adjusted(2, 2, -2, -2);
        return inkRows(image,
                       isAhead ? QRect(place.left(), place.top(), 24, place.height())
                               : QRect(place.right() - 20, place.top(), 20, place.height()),
                       tone(Tone::Field));
    };
    EXPECT_EQ(ink(plain, true), 0);
    EXPECT_GT(ink(ticked, true), 4);
    EXPECT_GT(ink(pictured, true), 12);
    EXPECT_EQ(ink(plain, false), 0);
    EXPECT_GT(ink(leading, false), 4);
    menu.hide();
}

} // namespace
