// A check that the templates in the folder are of this program's version. Deliberately nothing calls it: a template of
// another version loads and renders like any other.
#pragma once

#include "base/ApplicationFolder.h"
#include "base/UserPrompts.h"

#include <QString>

#include <functional>

// Compares the version in the first line of a template with the program's. When they differ it shows a box, closes the
// window and returns false. Raises ErrorNumber::FileNotFound when there is no such template.
bool CheckTemplateVersion(const QString& name, const ApplicationFolder& folder, UserPrompts& prompts,
                          const std::function<void()>& closeWindow);

// The same for all twelve templates, whatever the result for each.
void CheckAllTemplateVersions(const ApplicationFolder& folder, UserPrompts& prompts,
                              const std::function<void()>& closeWindow);
