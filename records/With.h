// How the words of a layout are made: each gives a copy of its object with one member changed.
#pragma once

#include <utility>

namespace norvane::records
{

/// A copy of @p object whose @p member is @p value.
template <typename Object, typename Member, typename Value>
Object with(Object object, Member Object::*member, Value&& value)
{
    object.*member = std::forward<Value>(value);
    return object;
}

} // namespace norvane::records
