// The fixture of the tests that look at all that the program shows: a walk through every panel of the catalogue, every
// tab of the design, and every dialog of the program's own, on the sample shop.
#pragma once

#include "support/WindowTest.h"

#include <QDialog>

#include <functional>

class EveryScreen : public WindowTest
{
protected:
    void SetUp() override;

    void inEachPanelOfTheCatalogue(const std::function<void()>& look);
    void inEachTabOfTheDesign(const std::function<void()>& look);
    // Opens one after the other, and closes each when it was looked at.
    void inEachDialog(const std::function<void(QDialog& dialog)>& look);

private:
    void inDialog(const char* name, const std::function<void()>& open,
                  const std::function<void(QDialog& dialog)>& look);
};
