// A child that writes its working directory and its words: "log <file> <words>...", writes its number and
// hangs as long as the file is there: "hang <file>", or ends by a signal.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <thread>
#include <unistd.h>

int main(int argc, char** argv)
{
    if (argc < 3)
        std::raise(SIGKILL);
    const bool hangs = argv[1] == std::string_view("hang");
    std::ofstream log(argv[2]);
    if (hangs)
        log << getpid() << '\n';
    log << std::filesystem::current_path().string() << '\n';
    for (int i = 3; i < argc; ++i)
        log << argv[i] << '\n';
    log.close();
    while (hangs && std::filesystem::exists(argv[2]))
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    return 8;
}
