/// @file
/// Runs a script from standard input, one operation a line, and prints what each one did.

#include "Operations.h"

#include <cstdio>
#include <ctime>
#include <exception>
#include <iostream>
#include <string>

namespace {

model::Operations allOperations()
{
    model::Operations operations;
    model::addMemberOperations(operations);
    model::addFunctionOperations(operations);
    model::addTreeOperations(operations);
    model::addObjectOperations(operations);
    return operations;
}

void runAll(const std::string& folder)
{
    const model::Operations operations = allOperations();
    model::Session session(folder);
    std::string line;
    while (std::getline(std::cin, line)) {
        // Flushes, so that no answer from before a crash is lost.
        std::cout << session.run(line, operations) << std::endl;
    }
}

} // namespace

int main(int count, char** arguments)
{
    if (count != 2) {
        std::fputs("usage: model_driver FOLDER < script\n", stderr);
        return 2;
    }
    tzset();
    try {
        runAll(arguments[1]);
    } catch (const std::exception& problem) {
        std::fprintf(stderr, "%s\n", problem.what());
        return 1;
    }
    return 0;
}
