// The benchmarks of the rules.
#include "table_reporter.h"

int main(int argc, char** argv) {
    return tidemark::Run_benchmarks(argc, argv);
}
