// The main function of benchmarks with widgets.
#pragma once

#include "ui/Appearance.h"

#include <benchmark/benchmark.h>
#include <QApplication>

namespace norvane::bench
{

/// Runs the program's benchmarks as the program looks, but without a screen, which would add its own time.
inline int runWithWidgets(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    ui::applyAppearance(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}

} // namespace norvane::bench
