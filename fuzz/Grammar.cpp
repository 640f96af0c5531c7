#include "Grammar.h"

#include <cstdio>
#include <cstdlib>
#include <fstream>

Grammar::Grammar(const std::string& file) {
    std::ifstream lines(file);
    std::string rule;
    for (std::string line; std::getline(lines, line);) {
        const auto begin = line.find_first_not_of(' ');
        if (begin == std::string::npos || line[0] == '#') {
            continue;
        }
        if (begin == 0) {
            rule = line;
        } else {
            rules_[rule].push_back(line.substr(begin));
        }
    }
    Random random(1);
    for (const auto& entry : rules_) {
        for (int i = 0; i < 200; ++i) {
            text(entry.first, 3, random);
        }
    }
}

const std::vector<std::string>& Grammar::alternatives(std::string_view rule) const {
    const auto found = rules_.find(rule);
    if (found == rules_.end()) {
        std::fprintf(stderr, "no grammar rule %s\n", std::string(rule).c_str());
        std::exit(1);
    }
    return found->second;
}

std::string Grammar::text(std::string_view rule, int depth, Random& random) const {
    const auto& all = alternatives(rule);
    const std::string_view form = depth > 0 ? all[pick(random, all.size())] : all.front();
    std::string made;
    std::size_t at = 0;
    while (at < form.size()) {
        const auto close = form[at] == '<' ? form.find('>', at) : std::string_view::npos;
        const bool isName = close != std::string_view::npos && close > at + 1 &&
                            form.find_first_of(" =<", at + 1) > close;
        if (isName) {
            made += text(form.substr(at + 1, close - at - 1), depth - 1, random);
            at = close + 1;
        } else {
            made += form[at++];
        }
    }
    return made;
}
