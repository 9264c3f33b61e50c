#pragma once

#include "platform/Preferences.h"

#include <QJSEngine>
#include <QJSValue>

#include <string>
#include <vector>

namespace veyrand::scenario {

// Between a script's values and the game's. A script's whole numbers are numbers, its flags flags.

platform::PreferenceValue toPreference(const QJSValue& value);
platform::PreferenceRecord toRecord(const QJSValue& object);
// What is an object in the script is a record in the preferences.
platform::Preferences::Contents toContents(const QJSValue& object);
QJSValue toScript(const platform::PreferenceValue& value);
QJSValue toScript(QJSEngine& engine, const platform::PreferenceRecord& record);
QJSValue toScript(QJSEngine& engine, const std::vector<std::string>& texts);

// An object's field, or what stands for one that is left out.
QJSValue field(const QJSValue& object, const char* name, const QJSValue& otherwise);
std::string text(const QJSValue& value);

// "Shift", "Ctrl+Alt" and so on; "Control", "Option" and "Command" are understood too. Anything
// else adds nothing.
Qt::KeyboardModifiers toModifiers(const QJSValue& value);

} // namespace veyrand::scenario
