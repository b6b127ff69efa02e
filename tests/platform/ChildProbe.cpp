// A child that does what the test asks for: "log <file> <words>..." writes its words and its working
// directory, "late <file>" writes after a while, "crash" ends by a signal, "exit <code>" with a code.
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string_view>
#include <thread>

int main(int argc, char** argv)
{
    const std::string_view order = argc > 1 ? argv[1] : "";
    if (order == "crash") {
        std::raise(SIGKILL);
    }
    if (order == "exit") {
        return std::atoi(argv[2]);
    }
    if (order == "late") {
        std::this_thread::sleep_for(std::chrono::milliseconds(300));
    }
    std::ofstream log(argv[2]);
    log << std::filesystem::current_path().string() << '\n';
    for (int i = 3; i < argc; ++i) {
        log << argv[i] << '\n';
    }
    return 0;
}
