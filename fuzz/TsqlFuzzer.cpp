// Fuzzes the T-SQL front: no text may crash or hang it, and what it takes it must take again in its
// own spelling, with the same tree.
#include "tsql/syntax/Parser.h"
#include "tsql/syntax/Shape.h"
#include "tsql/syntax/TreeText.h"
#include "tsql/values/Errors.h"

#include <cstdio>
#include <cstdlib>

using namespace velcro::sql::tsql;

namespace {

/// The tree's own text nests its brackets, so it may be refused for that where the input was not.
constexpr int nestedTooDeeply = 191;

void expectSameTree(const std::string& tree) {
    std::string again;
    try {
        again = treeText(parse(tree));
    } catch (const Fault& fault) {
        if (fault.number() == nestedTooDeeply) {
            return;
        }
        again = fault.what();
    }
    if (again != tree) {
        std::fprintf(stderr, "tree:  %s\nagain: %s\n", tree.c_str(), again.c_str());
        std::abort();
    }
}

void parseWhole(std::string_view text) {
    try {
        expectSameTree(treeText(parse(text)));
    } catch (const Fault&) { // a refusal is an answer
    }
}

void parsePieces(std::string_view text) {
    try {
        ShapeReader reader(text);
        ShapeCache<int> cache(4);
        Shape shape;
        while (reader.next(shape)) {
            const Batch batch = parse(shape.text, shape.firstLine, shape.beginsBatch);
            cache.insert(shape, batch.structuralLiterals, 1);
            if (!cache.find(shape)) {
                std::abort();
            }
        }
    } catch (const Fault&) { // a refusal is an answer
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    parseWhole(text);
    parsePieces(text);
    return 0;
}
