#include "shell/ProgressFrames.h"

#include "look/Measures.h"
#include "look/Paint.h"
#include "look/Tones.h"
#include "look/WordLabel.h"

#include <QCoreApplication>
#include <QPainter>
#include <QThread>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

ShortProgressBar::ShortProgressBar(QWidget* parent) : QProgressBar(parent)
{
    setObjectName(u"PrBar"_s);
    setAccessibleName(u"Progress"_s);
    setTextVisible(false);
    setRange(0, 100);
    setAutoFillBackground(true); // so that nothing behind it is painted with it
    hide();
}

// A new value paints the bar at once.
void ShortProgressBar::run()
{
    raise();
    show();
    for (int value = 0; value <= 100; value += 5) {
        setValue(value);
        QThread::msleep(1);
    }
    hide();
}

CaptionedProgress::CaptionedProgress(const QString& caption, QWidget* parent)
    : QFrame(parent), Label1(new WordLabel(WordLabel::Kind::Heading, caption, this)), m_bar(new QProgressBar(this))
{
    m_bar->setAccessibleName(caption);
    m_bar->setRange(0, 100);
    m_bar->setTextVisible(false);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(24, 20, 24, 24);
    layout->setSpacing(12);
    layout->addWidget(Label1);
    layout->addWidget(m_bar);
    resize(qMax(420, sizeHint().width()), sizeHint().height());
    hide();
}

// It lies over other things, so its edge is one that is seen on all of them.
void CaptionedProgress::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    fillRounded(painter, rect(), Measure::Radius, tone(Tone::Chrome));
    drawRing(painter, rect(), Measure::Radius, Measure::Hairline, tone(Tone::Edge));
}

SaveFrame::SaveFrame(QWidget* parent) : CaptionedProgress(u"Saving the shop"_s, parent)
{
    setObjectName(u"SaveProgressFrame"_s);
    Label1->setObjectName(u"Label1"_s);
    m_bar->setObjectName(u"SaveProgressBar"_s);
}

void SaveFrame::begin()
{
    raise();
    m_bar->setValue(0);
    show();
    QCoreApplication::processEvents();
}

void SaveFrame::finish()
{
    for (int value = 0; value <= 100; ++value) {
        m_bar->setValue(value);
        QThread::msleep(3);
        QCoreApplication::processEvents();
    }
    hide();
}

ImportFrame::ImportFrame(QWidget* parent) : CaptionedProgress(u"Importing products"_s, parent)
{
    setObjectName(u"ImportProgressFrame"_s);
    m_bar->setObjectName(u"ImportProgressBar"_s);
}

void ImportFrame::report(int percent)
{
    if (isHidden()) {
        raise();
        show();
    }
    m_bar->setValue(percent);
}
