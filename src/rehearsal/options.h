#pragma once

#include <QHostAddress>
#include <QStringList>

#include "rehearsal/stage.h"

namespace zelvor::rehearsal {

// What the command line of zelvor-rehearsal asks for.
struct Options {
    static constexpr quint16 kAmcpPort = 5250;
    static constexpr quint16 kHttpPort = 8250;
    static constexpr int kMaxChannels = 16;

    QHostAddress bind = QHostAddress(QHostAddress::LocalHost);
    quint16 amcpPort = kAmcpPort;  // 0: a free one
    quint16 httpPort = kHttpPort;
    VideoMode mode = *videoModeNamed(Stage::kUsualMode);
    int channels = 2;  // 1..kMaxChannels
    QString templates;

    // The text asked for by --help or --version, empty otherwise.
    QString wantedText;
};

// arguments: without the program's name. Throws UsageError.
Options readOptions(const QStringList& arguments);

}  // namespace zelvor::rehearsal
