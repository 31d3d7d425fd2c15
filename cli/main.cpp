#include <iostream>
#include <string>
#include <vector>

#include "cli/run.h"

int main(int argc, char** argv) {
  return verdalis::run(std::vector<std::string>(argv + (argc > 0 ? 1 : 0), argv + argc), std::cin, std::cout,
                       std::cerr);
}
