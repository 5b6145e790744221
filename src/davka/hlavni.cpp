// davka/hlavni.cpp - the entry of tesk-davka.
#include "app/slozky.h"
#include "davka/davka.h"

#include <csignal>
#include <filesystem>
#include <ios>
#include <iostream>
#include <string>
#include <system_error>
#include <vector>

int main(int argc, char** argv) {
    std::signal(SIGXFSZ, SIG_IGN); // a limit of the file size is told like a full disk
    std::ios::sync_with_stdio(false);
    std::error_code kod;
    std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", kod);
    if (kod)
        program = std::filesystem::absolute(argv[0], kod);
    const Slozky slozky = urci_slozky(program.parent_path().string(), prostredi_slozek());
    pouzij_slozky(slozky);
    return hlavni_davky(std::vector<std::string>(argv + 1, argv + argc), slozky.obsluhy);
}
