#include "editors/design/FontAndColorEditorPanel.h"

#include "base/UserPrompts.h"
#include "base/XMLUtils.h"
#include "design/CSSClass.h"
#include "design/SwitchWord.h"
#include "editors/ClosedList.h"
#include "editors/PanelHost.h"
#include "editors/PanelParts.h"
#include "editors/design/ColourText.h"
#include "look/Measures.h"
#include "look/SwatchButton.h"
#include "look/Tones.h"
#include "model/ShopSession.h"

#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

constexpr int widestField = 320; // pixels; the panel may be as wide as a page

const QStringList& fontNames()
{
    static const QStringList names = {u"Arial"_s, u"Helvetica"_s, u"Sans-serif"_s, u"Times New Roman"_s, u"Verdana"_s};
    return names;
}

const QStringList& fontSizes()
{
    static const QStringList sizes = {u"7pt"_s,  u"8pt"_s,  u"9pt"_s,  u"10pt"_s, u"11pt"_s, u"12pt"_s,
                                      u"14pt"_s, u"16pt"_s, u"18pt"_s, u"20pt"_s, u"22pt"_s, u"24pt"_s,
                                      u"26pt"_s, u"28pt"_s, u"30pt"_s, u"36pt"_s, u"42pt"_s, u"48pt"_s};
    return sizes;
}

// Selects the entry with that text. One that the list does not have is added until the next call.
void select(QComboBox* list, const QStringList& entries, const QString& text)
{
    while (list->count() > entries.size()) {
        list->removeItem(list->count() - 1);
    }
    if (!entries.contains(text)) {
        list->addItem(text);
    }
    list->setCurrentIndex(list->findText(text, Qt::MatchExactly | Qt::MatchCaseSensitive));
}

QComboBox* namedList(const char* name, const QStringList& entries, const QString& selected, QWidget* parent)
{
    auto* list = new ClosedList(parent);
    list->setObjectName(QLatin1String(name));
    list->addItems(entries);
    select(list, entries, selected);
    return list;
}

} // namespace

FontAndColorEditorPanel::FontAndColorEditorPanel(PanelHost& host, QWidget* parent)
    : QWidget(parent), Frame1(new QGroupBox(this))
{
    Frame1->setObjectName(u"Frame1"_s);
    auto* around = new QVBoxLayout(this);
    around->setContentsMargins(0, 0, 0, 0);
    around->addWidget(Frame1);

    auto* form = new QFormLayout(Frame1);
    form->setContentsMargins(Measure::Section, Measure::Gap, Measure::Section, Measure::Section);
    form->setHorizontalSpacing(Measure::Section);
    form->setVerticalSpacing(Measure::Gap);
    makeFontRow();
    makeColourRow(host);

    SampleLbl = new QLabel(u"The quick brown fox"_s, Frame1);
    SampleLbl->setObjectName(u"SampleLbl"_s);
    SampleLbl->setAccessibleName(u"Sample of the style"_s);
    SampleLbl->setAlignment(Qt::AlignCenter);
    SampleLbl->setAutoFillBackground(true);
    SampleLbl->setMinimumSize(300, 64);
    SampleLbl->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    form->addRow(SampleLbl);
    for (QWidget* field :
         std::initializer_list<QWidget*>{FontNameLst, FontSizeLst, ForeGroundColorBtn, BackGroundColorBtn}) {
        field->setMaximumWidth(widestField);
        field->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    }

    for (QComboBox* list : {FontNameLst, FontSizeLst}) {
        connect(list, &QComboBox::currentTextChanged, this, &FontAndColorEditorPanel::showSample);
    }
    for (QCheckBox* check : {Check1, Check2, Check3, Check4}) {
        connect(check, &QCheckBox::toggled, this, &FontAndColorEditorPanel::showSample);
    }
    showSample();
}

void FontAndColorEditorPanel::makeFontRow()
{
    auto* form = qobject_cast<QFormLayout*>(Frame1->layout());
    FontNameLst = namedList("FontNameLst", fontNames(), u"Arial"_s, Frame1);
    FontSizeLst = namedList("FontSizeLst", fontSizes(), u"10pt"_s, Frame1);
    form->addRow(captionOf(u"&Font:"_s, FontNameLst), FontNameLst);
    form->addRow(captionOf(u"Si&ze:"_s, FontSizeLst), FontSizeLst);

    auto* row = new QHBoxLayout;
    row->setSpacing(14);
    for (auto [check, name, caption] :
         {std::tuple(&Check1, "Check1", u"&Bold"_s), std::tuple(&Check2, "Check2", u"&Italic"_s),
          std::tuple(&Check3, "Check3", u"&Underlined"_s), std::tuple(&Check4, "Check4", u"Struck th&rough"_s)}) {
        *check = new QCheckBox(caption, Frame1);
        (*check)->setObjectName(QLatin1String(name));
        row->addWidget(*check);
    }
    row->addStretch(1);
    form->addRow(row);
}

void FontAndColorEditorPanel::makeColourRow(PanelHost& host)
{
    using Setter = void (FontAndColorEditorPanel::*)(const QString&);
    const auto colourButton = [&](const char* name, const QString& caption, const QString& accessibleName,
                                  const QString& colour, Setter set) {
        auto* button = new SwatchButton(Frame1);
        button->setObjectName(QLatin1String(name));
        button->setAccessibleName(accessibleName);
        button->setIconSize(SwatchIconSize);
        button->setAutoDefault(false); // Enter stays with the dialog's button
        qobject_cast<QFormLayout*>(Frame1->layout())->addRow(captionOf(caption, button), button);
        connectGuarded(host.errorHandler(), button, &QPushButton::clicked, this, [this, &host, &colour, set] {
            std::optional<int> chosen = host.session().prompts.chooseColour(colourNumberOf(colour));
            if (chosen) {
                (this->*set)(ColorToHex(*chosen));
            }
        });
        return button;
    };
    ForeGroundColorBtn = colourButton("ForeGroundColorBtn", u"Te&xt colour:"_s, u"Text colour"_s, m_foreGround,
                                      &FontAndColorEditorPanel::setObjectForeGroundColor);
    BackGroundColorBtn = colourButton("BackGroundColorBtn", u"Back&ground:"_s, u"Background colour"_s, m_backGround,
                                      &FontAndColorEditorPanel::setObjectBackGroundColor);
}

void FontAndColorEditorPanel::SetActiveObject(const CSSClass& style)
{
    setObjectForeGroundColor(style.ForeGroundColor);
    setObjectBackGroundColor(style.BackGroundColor);
    setObjectFontName(style.FontName);
    setObjectFontSize(style.FontSize);
    setObjectFontBold(isYes(style.IsBold));
    setObjectFontCursiv(isYes(style.IsCursive));
    setObjectFontUnderline(isYes(style.IsUndcelined));
    setObjectFontLineTrough(isYes(style.IsLineThrugh));
}

void FontAndColorEditorPanel::SaveActiveObject(CSSClass& style) const
{
    style.ForeGroundColor = ObjectForeGroundColor();
    style.BackGroundColor = ObjectBackGroundColor();
    style.FontName = ObjectFontName();
    style.FontSize = ObjectFontSize();
    style.IsBold = switchWord(ObjectFontBold());
    style.IsCursive = switchWord(ObjectFontCursiv());
    style.IsUndcelined = switchWord(ObjectFontUnderline());
    style.IsLineThrugh = switchWord(ObjectFontLineTrough());
}

// Properties ----------------------------------------------------------------------------------------------------------

QString FontAndColorEditorPanel::ObjectTitle() const
{
    return Frame1->title();
}

void FontAndColorEditorPanel::setObjectTitle(const QString& title)
{
    Frame1->setTitle(title);
}

void FontAndColorEditorPanel::setObjectForeGroundColor(const QString& colour)
{
    m_foreGround = colour;
    showColour(ForeGroundColorBtn, colour);
}

void FontAndColorEditorPanel::setObjectBackGroundColor(const QString& colour)
{
    m_backGround = colour;
    showColour(BackGroundColorBtn, colour);
}

QString FontAndColorEditorPanel::ObjectFontName() const
{
    return FontNameLst->currentText();
}

void FontAndColorEditorPanel::setObjectFontName(const QString& name)
{
    select(FontNameLst, fontNames(), name);
}

QString FontAndColorEditorPanel::ObjectFontSize() const
{
    return FontSizeLst->currentText();
}

void FontAndColorEditorPanel::setObjectFontSize(const QString& size)
{
    select(FontSizeLst, fontSizes(), size);
}

bool FontAndColorEditorPanel::ObjectFontBold() const
{
    return Check1->isChecked();
}

void FontAndColorEditorPanel::setObjectFontBold(bool on)
{
    Check1->setChecked(on);
}

bool FontAndColorEditorPanel::ObjectFontCursiv() const
{
    return Check2->isChecked();
}

void FontAndColorEditorPanel::setObjectFontCursiv(bool on)
{
    Check2->setChecked(on);
}

bool FontAndColorEditorPanel::ObjectFontUnderline() const
{
    return Check3->isChecked();
}

void FontAndColorEditorPanel::setObjectFontUnderline(bool on)
{
    Check3->setChecked(on);
}

bool FontAndColorEditorPanel::ObjectFontLineTrough() const
{
    return Check4->isChecked();
}

void FontAndColorEditorPanel::setObjectFontLineTrough(bool on)
{
    Check4->setChecked(on);
}

// What is shown -------------------------------------------------------------------------------------------------------

void FontAndColorEditorPanel::showColour(QPushButton* button, const QString& colour)
{
    button->setText(colour);
    button->setIcon(colourSwatch(colourOf(colour), tone(Tone::Edge), devicePixelRatioF()));
    showSample();
}

void FontAndColorEditorPanel::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::PaletteChange && BackGroundColorBtn) {
        showColour(ForeGroundColorBtn, m_foreGround);
        showColour(BackGroundColorBtn, m_backGround);
    }
}

void FontAndColorEditorPanel::showSample()
{
    if (!SampleLbl) {
        return;
    }
    QPalette colours = palette();
    colours.setColor(QPalette::WindowText, Qt::black); // a page without colours of its own, whatever the window's look
    colours.setColor(QPalette::Window, Qt::white);
    const auto use = [&colours](QPalette::ColorRole role, const QString& text) {
        const QColor colour = colourOf(text);
        if (colour.isValid()) {
            colours.setColor(role, colour);
        }
    };
    use(QPalette::WindowText, m_foreGround);
    use(QPalette::Window, m_backGround);
    SampleLbl->setPalette(colours);

    QFont font(ObjectFontName());
    const double points = ObjectFontSize().chopped(ObjectFontSize().endsWith(u"pt") ? 2 : 0).toDouble();
    font.setPointSizeF(points > 0 ? points : this->font().pointSizeF());
    font.setBold(ObjectFontBold());
    font.setItalic(ObjectFontCursiv());
    font.setUnderline(ObjectFontUnderline());
    font.setStrikeOut(ObjectFontLineTrough());
    SampleLbl->setFont(font);
}
