// The question before a loss, as the tests of all parts expect it.
#pragma once

#include "tests/support/RecordingBoxes.h"

#include <gtest/gtest.h>

namespace norvane::test
{

/// @param part of the question's text.
inline void expectAskedFirst(const ShownBox& box, QStringView part)
{
    EXPECT_TRUE(box.text.contains(part)) << box.text.toStdString();
    EXPECT_EQ(box, (ShownBox{box.text, QStringLiteral("Please Check"), BoxIcon::Question, BoxAnswer::No}));
}

} // namespace norvane::test
