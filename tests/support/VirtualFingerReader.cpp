#include "support/VirtualFingerReader.h"

#include "support/FingerPicture.h"

#include <QProcess>

#include <stdexcept>
#include <thread>

#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace velcro::test {

namespace {

const char* const variable = "FP_VIRTUAL_IMAGE";
constexpr int patience = 20'000; // milliseconds
constexpr int fatalError = -2;
constexpr int deviceRemoved = 0x100;

} // namespace

VirtualFingerReader::VirtualFingerReader() {
    qputenv(variable, QByteArray::fromStdString(folder_.file("reader")));
}

VirtualFingerReader::~VirtualFingerReader() {
    qunsetenv(variable);
    if (socket_ >= 0) {
        close(socket_);
    }
}

void VirtualFingerReader::connectTo() {
    sockaddr_un address{.sun_family = AF_UNIX, .sun_path = {}};
    folder_.file("reader").copy(address.sun_path, sizeof address.sun_path - 1);
    for (int waited = 0; waited < patience; waited += 10) {
        socket_ = socket(AF_UNIX, SOCK_STREAM, 0);
        if (connect(socket_, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0) {
            return;
        }
        close(socket_);
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    throw std::runtime_error("nobody watches the reader");
}

// Whoever watched before may be gone.
void VirtualFingerReader::send(int first, int second, const QByteArray& bytes) {
    QByteArray message(reinterpret_cast<const char*>(&first), sizeof first);
    message.append(reinterpret_cast<const char*>(&second), sizeof second);
    message.append(bytes);
    if (socket_ < 0) {
        connectTo();
    }
    if (::send(socket_, message.constData(), size_t(message.size()), MSG_NOSIGNAL) !=
        message.size()) {
        close(socket_);
        connectTo();
        (void)!::send(socket_, message.constData(), size_t(message.size()), MSG_NOSIGNAL);
    }
}

void VirtualFingerReader::lay(const QImage& picture) {
    QByteArray bytes;
    for (int row = 0; row < picture.height(); ++row) {
        bytes.append(reinterpret_cast<const char*>(picture.constScanLine(row)), picture.width());
    }
    send(picture.width(), picture.height(), bytes);
}

void VirtualFingerReader::unplug() {
    send(fatalError, deviceRemoved);
}

QByteArray VirtualFingerReader::enrol(unsigned finger, const QStringList& arguments) {
    QProcess program;
    program.setReadChannel(QProcess::StandardError);
    program.start(QStringLiteral(VELCRO_ENROL), arguments);
    for (unsigned impression = 0; program.waitForReadyRead(patience);) {
        const QByteArray said = program.readAllStandardError();
        for (int i = 0; i < said.count("Place the finger"); ++i) {
            lay(fingerPicture(finger, impression++));
        }
        if (impression == 5) {
            break;
        }
    }
    program.waitForFinished(patience);
    close(socket_);
    socket_ = -1;
    if (program.exitCode() != 0) {
        throw std::runtime_error(program.readAllStandardError().toStdString());
    }
    return program.readAllStandardOutput().trimmed();
}

} // namespace velcro::test
