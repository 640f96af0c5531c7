#include "platform/seat/CommandLine.h"

#include <cstring>

namespace velcro::seat {

// The arguments lie in the very memory that /proc shows.
void hideArgument(int argc, char** argv, const QString& text) {
    const QByteArray bytes = text.toLocal8Bit();
    for (int i = 1; i < argc && !bytes.isEmpty(); ++i) {
        if (bytes == argv[i]) {
            std::memset(argv[i], '*', std::strlen(argv[i]));
        }
    }
}

void leaveOwnConsole() {}

} // namespace velcro::seat
