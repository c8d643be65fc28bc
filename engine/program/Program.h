// What the engine's programs have in common: verbs with options, help, output and exit codes.
#pragma once

#include "base/Result.h"

#include <cstddef>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace engine::program {

/// An option that a verb takes, anywhere after the verb and at most once where it has a value.
struct Option {
    const char *name; ///< with its dash
    /// The sentence for a value that is missing or wrong; without it the option takes no value.
    const char *wants = nullptr;
    /// Whether a value is right; every one is without it.
    bool (*isRight)(std::string_view value) = nullptr;
};

/// What stands behind a verb.
struct Arguments {
    std::vector<std::string> operands; ///< as many as the verb wants
    std::map<std::string, std::string, std::less<>> options; ///< those given, with their values

    bool has(std::string_view option) const { return options.contains(option); }
    /// The value of an option; empty when it was not given.
    std::string valueOf(std::string_view option) const;
};

struct Verb {
    const char *name;
    const char *usage; ///< how it is called, without the program's name
    std::size_t operands;
    std::span<const Option> options;
    Result<void> (*run)(const Arguments &arguments);
    std::string help = {}; ///< lines of the program's help that tell about it
};

struct Program {
    const char *name;
    const char *usage; ///< how it is called in general, without its name
    std::string help; ///< what stands behind the lines of the verbs
    std::span<const Verb> verbs;
};

/// Does what the command line says: a verb, --help or --version; `help` is --help, of one verb when its name stands behind it or
/// when --help stands behind the name. An error becomes one line on standard
/// error (and one more with the usage, if the arguments were wrong). Returns the exit code.
int run(const Program &program, std::span<const char *const> words);

/// An error in the arguments; `message` is a sentence.
Error usageError(std::string message);

/// Writes what the whole run is for: an output that does not take it is an error.
Result<void> printReport(const std::string &text);

} // namespace engine::program
