// Stands in for libFuzzer where a target is built without it: puts every seed to the target, then
// inputs made of the seeds, the same ones in every run. So the tests put them to what they have built
// anyway; looking for new inputs is libFuzzer's work.
//
// usage: fuzz_<target> <inputs made of seeds> <largest of them, in bytes> <folder of seeds>...
// An input that breaks something, or takes longer than ten seconds, is left in crash-<target>.
#include "Grammar.h"

#include <sanitizer/common_interface_defs.h>

#include <algorithm>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>

#include <unistd.h>

extern "C" {
int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);
std::size_t LLVMFuzzerMutate(unsigned char* data, std::size_t size, std::size_t maximum);
// What a target may bring of its own.
[[gnu::weak]] std::size_t LLVMFuzzerCustomMutator(unsigned char* data, std::size_t size,
                                                  std::size_t maximum, unsigned int seed);
[[gnu::weak]] std::size_t LLVMFuzzerCustomCrossOver(const unsigned char* first,
                                                    std::size_t firstSize,
                                                    const unsigned char* second,
                                                    std::size_t secondSize, unsigned char* out,
                                                    std::size_t maximum, unsigned int seed);
}

namespace {

constexpr unsigned secondsOfAnInput = 10;

Random chance(1);
std::string target;
std::string current;

unsigned char* bytesOf(std::string& text) {
    return reinterpret_cast<unsigned char*>(text.data());
}

void keepInput() {
    const std::string file = "crash-" + target;
    std::ofstream(file, std::ios::binary) << current;
    std::fprintf(stderr, "the input is in %s\n", file.c_str());
}

void stop(int signal) {
    std::fprintf(stderr, "stopped by signal %d\n", signal);
    keepInput();
    std::_Exit(EXIT_FAILURE);
}

void put(const std::string& input) {
    current = input;
    alarm(secondsOfAnInput);
    LLVMFuzzerTestOneInput(bytesOf(current), current.size());
    alarm(0);
}

/// In the order of their names, which is the same everywhere.
void readSeeds(const std::filesystem::path& folder, std::vector<std::string>& seeds) {
    std::vector<std::filesystem::path> files;
    std::ranges::copy(std::filesystem::directory_iterator(folder), std::back_inserter(files));
    std::ranges::sort(files);
    for (const auto& file : files) {
        std::ifstream stream(file, std::ios::binary);
        seeds.emplace_back(std::istreambuf_iterator(stream), std::istreambuf_iterator<char>());
    }
}

/// A bit turned, bytes put in or taken out, or a piece of it once more elsewhere.
void changeBytes(std::string& input) {
    const std::size_t at = pick(chance, input.size() + 1);
    const std::size_t count = 1 + pick(chance, 8);
    switch (input.empty() ? 1 : pick(chance, 4)) {
    case 0:
        bytesOf(input)[at % input.size()] ^= static_cast<unsigned char>(1U << pick(chance, 8));
        break;
    case 1:
        input.insert(at, count, static_cast<char>(pick(chance, 256)));
        break;
    case 2:
        input.erase(at, count);
        break;
    default:
        input.insert(at, input.substr(pick(chance, input.size()), 4 * count));
    }
}

std::string changed(const std::string& input, std::size_t maximum) {
    std::string out = input.substr(0, maximum);
    const std::size_t size = out.size();
    out.resize(maximum);
    const auto seed = static_cast<unsigned>(chance());
    out.resize(LLVMFuzzerCustomMutator != nullptr
                   ? LLVMFuzzerCustomMutator(bytesOf(out), size, maximum, seed)
                   : LLVMFuzzerMutate(bytesOf(out), size, maximum));
    return out;
}

std::string crossed(std::string first, std::string second, std::size_t maximum) {
    if (LLVMFuzzerCustomCrossOver == nullptr) {
        first.resize(pick(chance, first.size() + 1));
        return (first + second.substr(pick(chance, second.size() + 1))).substr(0, maximum);
    }
    std::string out(maximum, '\0');
    out.resize(LLVMFuzzerCustomCrossOver(bytesOf(first), first.size(), bytesOf(second),
                                         second.size(), bytesOf(out), maximum,
                                         static_cast<unsigned>(chance())));
    return out;
}

std::string made(const std::vector<std::string>& seeds, std::size_t maximum) {
    const auto& any = seeds[pick(chance, seeds.size())];
    std::string input =
        pick(chance, 4) == 0 ? crossed(any, seeds[pick(chance, seeds.size())], maximum) : any;
    do {
        input = changed(input, maximum);
    } while (pick(chance, 3) != 0);
    return input;
}

} // namespace

extern "C" std::size_t LLVMFuzzerMutate(unsigned char* data, std::size_t size,
                                        std::size_t maximum) {
    std::string text(reinterpret_cast<const char*>(data), size);
    changeBytes(text);
    const std::size_t now = std::min(text.size(), maximum);
    std::memcpy(data, text.data(), now);
    return now;
}

int main(int count, char** words) {
    if (count < 4) {
        std::fputs("usage: fuzz_<target> <inputs> <bytes> <folder of seeds>...\n", stderr);
        return EXIT_FAILURE;
    }
    target = std::filesystem::path(words[0]).filename().string();
    std::signal(SIGALRM, stop);
    std::signal(SIGABRT, stop);
    __sanitizer_set_death_callback(keepInput);
    std::vector<std::string> seeds;
    for (int i = 3; i < count; ++i) {
        readSeeds(words[i], seeds);
    }
    if (seeds.empty()) {
        std::fputs("no seed there\n", stderr);
        return EXIT_FAILURE;
    }
    std::ranges::for_each(seeds, put);
    const std::size_t maximum = std::stoul(words[2]);
    for (long left = std::stol(words[1]); left > 0; --left) {
        put(made(seeds, maximum));
    }
    std::printf("%zu seeds and %s inputs made of them\n", seeds.size(), words[1]);
    return EXIT_SUCCESS;
}
