// Whose hands these are: they do anything at all, or what an owner does who reads the labels.
enum class PlayedBy : bool { WildHands, CarefulOwner };

// Plays with one window until it is closed or the steps are used up: presses what it sees, types, picks, answers what
// opens. It also goes on while the window waits for a dialog or lets events run, as a person can.
#pragma once

#include "Dice.h"
#include "TreeCheck.h"
#include "shell/MainForm.h"
#include "support/WindowTest.h"

#include <QEventLoop>
#include <QObject>

class Monkey : public QObject
{
public:
    // All outlive it. It takes its steps off the count. The address is where the upload finds a server.
    Monkey(MainForm& window, RecordingPreview& preview, Dice& dice, PlayedBy player, int& stepsLeft,
           const QString& server);

    // Empty, or what has got out of step; the play ends then.
    QString play();

protected:
    void timerEvent(QTimerEvent* event) override;

private:
    void turn();
    bool waitsForUpload() const;
    void windUp();
    void act();
    void actInWindow();
    void actInDialog(QWidget& dialog);
    void actInPopup(QWidget& popup);

    void touchAny(QWidget& root);
    void touch(QWidget& widget);
    void touchText(QWidget& widget);
    void touchItems(QWidget& view);
    void addFilledRow(QWidget& link);
    void touchTree();
    void touchButton();
    void walk(QWidget& root);
    void pressAnyKey(QWidget& root);
    void chooseEntry();
    void pressCommandKey();
    void followLink();
    void changeWindow();

    QString textFor(const QWidget& field);
    QPoint placeIn(const QWidget& widget);
    QPoint anyPlace();
    Qt::MouseButton anyButton();

    MainForm& m_window;
    RecordingPreview& m_preview;
    Dice& m_dice;
    bool m_isCareful;
    int& m_stepsLeft;
    QString m_server;
    QEventLoop m_loop;
    TreeCheck m_check;
    QString m_disagreement;
    int m_depth = 0;           // turns that wait inside of one another
    int m_disturbances = 0;    // that are to come when the next step turns out to take longer
    bool m_isRestless = false; // also presses while an upload is under way
};
