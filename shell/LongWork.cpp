// See LongWork.h.
#include "shell/LongWork.h"

#include "shell/FrmMain.h"

namespace norvane::shell
{
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
    if (m_turns.isDue())
        m_turns.run();
}

} // namespace norvane::shell
