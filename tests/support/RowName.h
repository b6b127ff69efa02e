// The rows of a table as named parameters of a test.
#pragma once

#include <gtest/gtest.h>

namespace norvane::test
{

/// The row's own name, for INSTANTIATE_TEST_SUITE_P: letters, digits and underscores.
template <typename Row>
std::string rowName(const testing::TestParamInfo<Row>& info)
{
    return info.param.name;
}

} // namespace norvane::test
