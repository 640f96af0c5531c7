// Questions and their answers, as text files: the lines of a question, then each line of its answer
// behind ">". A line that begins with "# " names what follows.
#pragma once

#include <fstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace velcro::test {

struct Question
{
    std::string text, answer;
};

struct Section
{
    std::string name;
    std::vector<Question> questions;
};

/// Throws std::runtime_error when there is no such file, or a question has no answer.
inline std::vector<Section> sectionsOf(const std::string& path) {
    std::ifstream file(path);
    std::vector<Section> sections;
    bool answered = true;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with("# ") && answered) {
            sections.push_back({line.substr(2), {}});
        } else if (line.starts_with('>')) {
            auto& answer = sections.back().questions.back().answer;
            answer += (answered ? "\n" : "") + line.substr(line.starts_with("> ") ? 2 : 1);
            answered = true;
        } else if (!line.empty()) {
            auto& questions = sections.back().questions;
            if (answered) {
                questions.push_back({line, {}});
            } else {
                questions.back().text += "\n" + line;
            }
            answered = false;
        }
    }
    if (sections.empty() || !answered) {
        throw std::runtime_error("no questions with answers in " + path);
    }
    return sections;
}

} // namespace velcro::test
