// A field for a text of several lines that gives back exactly what it was filled with while the user has not changed
// it, line ends included. A form owns it.
#pragma once

#include <QPlainTextEdit>

class TextArea : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TextArea(QWidget* parent = nullptr);

    // Some lines. Where there is more room, the form gives it.
    QSize sizeHint() const override;

    void fill(const QString& text);
    // Changed texts have the line ends that the text had when it was filled in.
    QString text() const;

private:
    QString m_filled;
};
