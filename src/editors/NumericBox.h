// A field that takes number texts only. What would leave no number in it is refused: the text from before comes back. A
// form owns it.
#pragma once

#include <QLineEdit>

class NumericBox : public QLineEdit
{
    Q_OBJECT

public:
    enum class Takes {
        Number,           // in the user's decimal form
        NormalisedNumber, // with a point or a comma, for members that are normalised when they are read
        WholeNumber,      // what fits into 16 bits
    };

    explicit NumericBox(Takes takes, QWidget* parent = nullptr);

    // Whether a field of that kind takes the text. The empty text counts as 0.
    static bool accepts(Takes takes, const QString& text);

    // Shows a text of the model. It is never refused, even when it is no number.
    void fill(const QString& text);

Q_SIGNALS:
    // The user has changed the text, and it was accepted.
    void edited(const QString& text);

private:
    void check(const QString& text);

    Takes m_takes;
    QString m_accepted; // the text from before the last key
    int m_cursor = 0;
};
