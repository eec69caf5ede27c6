// The command-line tool: brings a simulated chip up and prints what the library says of it.
#include "tools/kestrel/CommandLine.h"

int main(int argc, char** argv) { return kestrel::run(argc, argv); }
