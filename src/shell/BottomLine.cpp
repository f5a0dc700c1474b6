#include "shell/BottomLine.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Type.h"

#include <QAbstractButton>
#include <QEvent>
#include <QHBoxLayout>
#include <QPainter>

using namespace Qt::StringLiterals;

namespace {

constexpr int markWidth = 2; // of the line at the top of the chosen width

struct PageWidth
{
    const char* name;
    int width; // in pixels of the window, 0 for all the room
    const char* caption;
    const char* accessibleName;
};

constexpr PageWidth pageWidths[] = {
    {"PhoneWidthBtn", 390, "390 px", "As wide as a phone, 390 pixels"},
    {"TabletWidthBtn", 820, "820 px", "As wide as a tablet, 820 pixels"},
    {"FullWidthBtn", 0, "Full width", "As wide as the window"},
};

QFont boldSmallFont()
{
    QFont font = smallFont();
    font.setBold(true);
    return font;
}

// The text is cut in its middle where the line is too short for it: a name of a backup can have any length.
class EventLabel : public WordLabel
{
public:
    explicit EventLabel(QWidget* parent) : WordLabel(Kind::Small, {}, parent)
    {
        setObjectName(u"lblLastEvent"_s);
        setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        painter.setPen(palette().color(foregroundRole()));
        painter.drawText(rect(), Qt::AlignRight | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(text(), Qt::ElideMiddle, width()));
    }
};

// One of the joined buttons: a hairline at its right, and at its left too when it is the first.
class WidthButton : public QAbstractButton
{
public:
    WidthButton(const PageWidth& row, bool isFirst, QWidget* parent) : QAbstractButton(parent), m_isFirst(isFirst)
    {
        setObjectName(QLatin1String(row.name));
        setText(QString::fromLatin1(row.caption));
        setAccessibleName(QString::fromLatin1(row.accessibleName));
        setToolTip(accessibleName());
        setCheckable(true);
        setAutoExclusive(true);
        setAttribute(Qt::WA_Hover);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(boldSmallFont()); // room for the bold words, so that none moves
        return {metrics.horizontalAdvance(text()) + 2 * Measure::Wide, Measure::Target};
    }

protected:
    void paintEvent(QPaintEvent* /*event*/) override
    {
        QPainter painter(this);
        if (isDown()) {
            fillSharp(painter, rect(), tone(Tone::Pressed));
        } else if (isChecked()) {
            fillSharp(painter, rect(), tone(Tone::Soft));
        } else if (underMouse()) {
            fillSharp(painter, rect(), tone(Tone::Hover));
        }
        const QRectF place(rect());
        fillSharp(painter, QRectF(place.right() - Measure::Hairline, 0, Measure::Hairline, place.height()),
                  tone(Tone::Line));
        if (m_isFirst) {
            fillSharp(painter, QRectF(0, 0, Measure::Hairline, place.height()), tone(Tone::Line));
        }
        if (isChecked()) {
            fillSharp(painter, QRectF(0, 0, place.width(), markWidth), tone(Tone::Accent));
        }
        painter.setFont(isChecked() ? boldSmallFont() : smallFont());
        painter.setPen(tone(isChecked() ? Tone::Text : Tone::Muted));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
        if (hasFocus()) {
            drawRing(painter, rect(), 0, Measure::Ring, tone(Tone::Accent));
        }
    }

private:
    bool m_isFirst;
};

} // namespace

BottomLine::BottomLine(FatalErrorHandler& errors, QWidget* parent)
    : LinedFrame(Qt::TopEdge, parent),
      m_notice(new WordLabel(WordLabel::Kind::Small, u"Ambrel eCommerce Software. All rights reserved."_s, this)),
      m_event(new EventLabel(this)),
      m_pageWidths(new QWidget(this))
{
    setObjectName(u"frmCopyright"_s);
    m_notice->setObjectName(u"lblCopyright"_s);
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(Measure::Gap, 0, Measure::Wide, 0);
    row->setSpacing(Measure::Section);
    row->addWidget(m_notice);
    row->addWidget(m_event, 1);
    row->addWidget(m_pageWidths);
    makePageWidths(errors);
    setLineHeight();
}

void BottomLine::makePageWidths(FatalErrorHandler& errors)
{
    m_pageWidths->hide();
    auto* row = new QHBoxLayout(m_pageWidths);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    for (const PageWidth& width : pageWidths) {
        auto* button = new WidthButton(width, &width == std::begin(pageWidths), m_pageWidths);
        // Tab leads to the chosen one, the arrow keys to the others.
        button->setChecked(width.width == 0);
        button->setFocusPolicy(button->isChecked() ? Qt::TabFocus : Qt::NoFocus);
        connectGuarded(errors, button, &QAbstractButton::toggled, this, [this, button, &width](bool isChosen) {
            button->setFocusPolicy(isChosen ? Qt::TabFocus : Qt::NoFocus);
            if (isChosen) {
                Q_EMIT pageWidthChosen(width.width);
            }
        });
        row->addWidget(button);
    }
}

// The same in all modes, so that nothing above it moves when the widths come.
void BottomLine::setLineHeight()
{
    setFixedHeight(std::max(Measure::Target, QFontMetrics(smallFont()).height() + Measure::Gap));
}

void BottomLine::changeEvent(QEvent* event)
{
    if (event->type() == QEvent::FontChange) {
        setLineHeight();
    }
    LinedFrame::changeEvent(event);
}

void BottomLine::tell(const QString& event)
{
    m_event->setTone(Tone::Muted);
    m_event->setText(event);
    m_event->setToolTip(event);
}

void BottomLine::tellFailure(const QString& event)
{
    tell(event);
    m_event->setTone(Tone::Error);
}

void BottomLine::showPageWidths(bool flag)
{
    m_pageWidths->setVisible(flag);
}
