// Walks through the windows of the program as a person does and keeps a picture of each step. The shop is a copy of the
// sample shop in a temporary folder.
#pragma once

#include "TourPrompts.h"
#include "base/Guarded.h"
#include "shell/MainForm.h"

#include <QDir>
#include <QSize>
#include <QTemporaryDir>

#include <memory>

class Tour
{
public:
    // The pictures go into the folder, which is made. The window takes the size unless it is empty. The errors handler
    // hears of run-time errors on the way.
    Tour(const QString& outputFolder, const QSize& windowSize, TourPrompts& prompts, FatalErrorHandler& errors);

    // The pages of the shop look the same in every palette and on every screen: one walk with them is enough.
    void walk(bool withPages);

private:
    QDir m_output;
    QTemporaryDir m_shopFolder;
    TourPrompts& m_prompts;
    std::unique_ptr<MainForm> m_window;
};
