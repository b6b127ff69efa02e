// The library that reads the former engine's files. Its header opens a block of C and includes C++ in it,
// unless glib was included before.
#pragma once

#include <glib.h>
#include <mdbtools.h>
