// A child that writes its working directory and its words: "log <file> <words>...", or ends by a signal.
#include <csignal>
#include <filesystem>
#include <fstream>

int main(int argc, char** argv)
{
    if (argc < 3)
        std::raise(SIGKILL);
    std::ofstream log(argv[2]);
    log << std::filesystem::current_path().string() << '\n';
    for (int i = 3; i < argc; ++i)
        log << argv[i] << '\n';
    return 8;
}
