// A check whether the templates in the folder are of this program's version. It is complete, and nothing calls it: a
// template of another version loads and renders like any other, and this is meant.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/UserPrompts.h"

#include <QString>

#include <functional>

// Compares the version in the first line of a template with the program's. On a difference it shows a box, closes the
// window and gives false. Error 53 when there is no such template.
bool CheckTemplateVersion(const QString& name, const ApplicationFolder& folder, UserPrompts& prompts,
                          const std::function<void()>& closeWindow);

// The same for all twelve templates, whatever the result of one.
void CheckAllTemplateVersions(const ApplicationFolder& folder, UserPrompts& prompts,
                              const std::function<void()>& closeWindow);
