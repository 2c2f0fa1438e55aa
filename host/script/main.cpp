// quorvel-script SCRIPT: runs the component headless from a scenario
// script; exits 1 when an expectation failed, 2 when the script can't be read.

#include <clocale>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "script/ScriptRunner.h"
#ifdef QV_SCRIPT_PRINTING
#include "script/ScriptPrinting.h"
#endif

int main(int argc, char** argv) {
    // Messages in the user's language; numbers keep the '.' the logic writes and reads.
    std::setlocale(LC_ALL, "");
    std::setlocale(LC_NUMERIC, "C");
    if (argc != 2) {
        std::cerr << "usage: quorvel-script SCRIPT   (\"-\" reads standard input)\n";
        return 2;
    }
    const std::string name = argv[1];
    std::ifstream file;
    if (name != "-") {
        file.open(name);
        if (!file) {
            std::cerr << "quorvel-script: cannot read " << name << "\n";
            return 2;
        }
    }
    std::istream& in = name == "-" ? std::cin : file;
    std::vector<std::string> lines;
    for (std::string line; std::getline(in, line);) lines.push_back(line);
    qv::ScriptRunner runner(std::cout);
#ifdef QV_SCRIPT_PRINTING
    qv::ScriptPrinting printing;
#endif
    return runner.run(lines) == 0 ? 0 : 1;
}
