#include <iostream>

#include "cli/cli.h"

int main(int argc, char** argv) { return kelvaro::cli::RunCli(argc, argv, std::cout, std::cerr); }
