// For tests with real widgets: an application without a screen whose outermost handler keeps a failure for
// the test to look at, where the program would show it and end; and the way to a form's controls.
#pragma once

#include "platform/RuntimeFailure.h"
#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>
#include <QtTest>
#include <QtWidgets>

#include <stdexcept>

namespace norvane
{
using namespace Qt::Literals::StringLiterals;
}

namespace norvane::test
{

/// Takes the failure that reached the outermost handler since the last call, if any.
std::optional<RuntimeFailure> takeFailure();

/// The object below @p form that has this name; a std::runtime_error without one.
template <typename Object>
[[nodiscard]] Object& child(const QObject& form, QAnyStringView name)
{
    auto* const found = form.findChild<Object*>(name.toString());
    if (found == nullptr)
        throw std::runtime_error("no control " + name.toString().toStdString());
    return *found;
}

/// Waits until @p condition holds, a few seconds at most; QTRY_VERIFY and its like fail in programs of their
/// own library only.
template <typename Condition>
[[nodiscard]] bool soon(Condition condition)
{
    return QTest::qWaitFor(condition, 3000);
}

inline void press(const QObject& form, QAnyStringView button)
{
    QTest::mouseClick(&child<QAbstractButton>(form, button), Qt::LeftButton);
}

} // namespace norvane::test
