#include "command_line.h"

#include "support/golden.h"

#include <sys/wait.h>

#include <cstdlib>

namespace dorvan::test {

namespace {

std::string Quoted(const std::string& text) {
    std::string result = "'";
    for (const char character : text)
        result += character == '\'' ? std::string("'\\''") : std::string(1, character);
    return result + "'";
}

} // namespace

Outcome runCli(const std::vector<std::string>& arguments, const std::vector<std::string>& environment) {
    const TemporaryFolder folder;
    std::string command = "env LC_ALL=C";
    for (const auto& setting : environment) command += " " + Quoted(setting);
    command += " " + Quoted(DORVAN_CLI);
    for (const auto& argument : arguments) command += " " + Quoted(argument);
    command += " >" + Quoted(folder / "out") + " 2>" + Quoted(folder / "err") + " </dev/null";
    const int status = std::system(command.c_str());
    return {WIFEXITED(status) ? WEXITSTATUS(status) : -1, fileBytes(folder / "out"),
            fileBytes(folder / "err")};
}

std::string programPath() { return DORVAN_CLI; }

std::string sample(const std::string& name) { return sourcePath("samples/" + name); }

} // namespace dorvan::test
