// What all benchmarks share: each measures our way against a named peer in the same run, and what counts is the ratio.
// Ours and the peer's are run in turns, several times each, and the medians are compared.
#pragma once

#include <string>
#include <vector>

struct Comparison
{
    std::string title;
    std::string ours; // names of registered benchmarks
    std::string theirs;
    double wanted = 0; // how many times faster ours has to be; 0 for a ratio that is only shown
};

// Runs all registered benchmarks, prints a table of the ratios with PASS or FAIL, and returns the exit code: 0 when
// every wanted ratio was reached.
int runAndCompare(int argc, char** argv, const std::vector<Comparison>& comparisons);
