// libfprint's reader without a device: pictures of fingers go to it through a socket.
#pragma once

#include "support/TempFolder.h"

#include <QByteArray>
#include <QImage>
#include <QStringList>

namespace velcro::test {

/// While it lives, programs that are started find this reader.
class VirtualFingerReader
{
public:
    VirtualFingerReader();
    ~VirtualFingerReader();
    VirtualFingerReader(const VirtualFingerReader&) = delete;
    VirtualFingerReader& operator=(const VirtualFingerReader&) = delete;

    /// Lays a finger on; the program that watches the reader has to be there.
    void lay(const QImage& picture);
    /// Takes it away from the seat.
    void unplug();

    /// What velcro-enrol says that is given five impressions of a finger: with these arguments its
    /// template. Throws when it fails.
    QByteArray enrol(unsigned finger,
                     const QStringList& arguments = {"--user", "COUNTER1", "--print"});

private:
    void connectTo();
    void send(int first, int second, const QByteArray& bytes = {});

    TempFolder folder_;
    int socket_ = -1;
};

} // namespace velcro::test
