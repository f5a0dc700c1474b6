#include "editors/design/TemplateText.h"

#include "editors/RawText.h"
#include "editors/design/TemplateHighlighter.h"

#include <QFontDatabase>
#include <QPaintEvent>
#include <QPainter>
#include <QTextBlock>

using namespace Qt::StringLiterals;

namespace {

constexpr int gap = 6; // pixels on both sides of a line's number
constexpr int leastDigits = 3;

class NumberMargin : public QWidget
{
public:
    explicit NumberMargin(TemplateText* text) : QWidget(text), m_text(text) {}

protected:
    void paintEvent(QPaintEvent* event) override { m_text->paintLineNumbers(event->rect(), this); }

private:
    TemplateText* m_text;
};

} // namespace

TemplateText::TemplateText(QWidget* parent)
    : QPlainTextEdit(parent), m_margin(new NumberMargin(this)), m_highlighter(new TemplateHighlighter(document()))
{
    setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setTabStopDistance(4 * fontMetrics().horizontalAdvance(u' '));
    m_highlighter->useColours(palette());
    setViewportMargins(lineNumberWidth(), 0, 0, 0);
    connect(this, &QPlainTextEdit::blockCountChanged, this, [this] { setViewportMargins(lineNumberWidth(), 0, 0, 0); });
    connect(this, &QPlainTextEdit::updateRequest, this, [this](const QRect& area, int scrolled) {
        if (scrolled != 0) {
            m_margin->scroll(0, scrolled);
        } else {
            m_margin->update(0, area.y(), m_margin->width(), area.height());
        }
    });
}

void TemplateText::showTemplate(const QString& templateText)
{
    QString text = templateText;
    setPlainText(text.replace(u"\r"_s, u"\r\n"_s));
}

QString TemplateText::editedText() const
{
    return rawText(*document(), u"\r\n"_s);
}

int TemplateText::lineNumberWidth() const
{
    const qsizetype digits = qMax<qsizetype>(leastDigits, QString::number(blockCount()).size());
    return 2 * gap + fontMetrics().horizontalAdvance(u'9') * static_cast<int>(digits);
}

void TemplateText::paintLineNumbers(const QRect& area, QWidget* margin)
{
    QPainter painter(margin);
    painter.fillRect(area, palette().color(QPalette::AlternateBase));
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.setFont(font());
    for (QTextBlock line = firstVisibleBlock(); line.isValid(); line = line.next()) {
        const QRectF place = blockBoundingGeometry(line).translated(contentOffset());
        if (place.top() > area.bottom()) {
            break;
        }
        painter.drawText(QRectF(0, place.top(), margin->width() - gap, place.height()), Qt::AlignRight | Qt::AlignTop,
                         QString::number(line.blockNumber() + 1));
    }
}

void TemplateText::resizeEvent(QResizeEvent* event)
{
    QPlainTextEdit::resizeEvent(event);
    const QRect lines = viewport()->geometry(); // a scroll bar below them takes the room of the numbers too
    m_margin->setGeometry(contentsRect().left(), lines.top(), lineNumberWidth(), lines.height());
}

void TemplateText::changeEvent(QEvent* event)
{
    QPlainTextEdit::changeEvent(event);
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::EnabledChange) {
        m_highlighter->useColours(palette());
    }
}
