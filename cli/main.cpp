#include <iostream>

#include "cli/run.h"
#include "platform/terminal.h"

int main(int argc, char** argv) {
  verdalis::prepareTerminal();
  return verdalis::run(verdalis::arguments(argc, argv), std::cin, std::cout, std::cerr);
}
