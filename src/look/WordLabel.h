// A label of one of the sizes and colours of the look. It follows the user's font and a change of the look.
#pragma once

#include "look/Tones.h"

#include <QLabel>

class WordLabel : public QLabel
{
    Q_OBJECT

public:
    enum class Kind {
        Title,   // of a panel: large and bold
        Heading, // bold
        Quiet,   // in the usual size, muted
        Small,   // small and muted
    };

    explicit WordLabel(Kind kind, const QString& text = {}, QWidget* parent = nullptr);

    // A colour other than the kind's, such as that of an error.
    void setTone(Tone tone);

protected:
    bool event(QEvent* event) override;

private:
    void dress();

    Kind m_kind;
    Tone m_tone;
};
