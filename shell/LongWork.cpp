// When pending events run; see LongWork.h.
#include "shell/LongWork.h"

#include "shell/FrmMain.h"

#include <QCoreApplication>

namespace norvane::shell
{
namespace
{

/// Too short to notice, and long enough for about a thousand records.
constexpr std::chrono::milliseconds betweenTurns{15};

} // namespace

LongWork::LongWork(FrmMain& main) : m_main(main)
{
    m_main.beginWork();
}

LongWork::~LongWork()
{
    m_main.endWork();
}

void LongWork::letEventsRun()
{
    if (std::chrono::steady_clock::now() < m_nextTurn)
        return;
    QCoreApplication::processEvents();
    m_nextTurn = std::chrono::steady_clock::now() + betweenTurns;
}

} // namespace norvane::shell
