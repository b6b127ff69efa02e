// A child that writes its working directory and its words: "log <file> <words>...", hangs until it is ended:
// "hang <file>" (written first), or ends by a signal.
#include <chrono>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <thread>

int main(int argc, char** argv)
{
    if (argc < 3)
        std::raise(SIGKILL);
    std::ofstream log(argv[2]);
    log << std::filesystem::current_path().string() << '\n';
    for (int i = 3; i < argc; ++i)
        log << argv[i] << '\n';
    log.close();
    while (argv[1] == std::string_view("hang"))
        std::this_thread::sleep_for(std::chrono::hours(1));
    return 8;
}
