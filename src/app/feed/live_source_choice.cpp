#include "app_feed/live_source_choice.h"

#include <QRegularExpression>

#include "app_feed/live_options.h"
#include "live/daktronics_decoder.h"
#include "live/livestats_decoder.h"
#include "live_sources/recording_player.h"
#include "live_sources/serial_source.h"
#include "live_sources/tcp_source.h"

using namespace Qt::StringLiterals;

namespace zelvor {

namespace {

std::unique_ptr<LiveSource> makeSource(const QString& text, double speed, Refusals& refusals, QString& fault) {
    static const QRegularExpression kAddress(u"^(livestats|daktronics):(.+):([0-9]{1,5})$"_s);
    if (const auto match = kAddress.match(text); match.hasMatch() && match.captured(3).toUShort() > 0) {
        const SourceKind kind = match.captured(1) == u"livestats" ? SourceKind::LiveStats : SourceKind::Daktronics;
        return std::make_unique<TcpSource>(kind, match.captured(2), match.captured(3).toUShort(), refusals);
    }
    if (text.startsWith(u"daktronics:/"_s)) return std::make_unique<SerialSource>(text.section(u':', 1));
    if (!text.startsWith(u"livestats:"_s) && !text.startsWith(u"daktronics:"_s)) {
        return RecordingPlayer::open(text, speed, refusals, fault);
    }
    fault =
        u"--source takes livestats:HOST:PORT, daktronics:/DEVICE, daktronics:HOST:PORT or a recording, not "_s + text;
    return nullptr;
}

}  // namespace

ChosenSource chooseSource(const LiveOptions& options, double speed, Refusals& refusals, QString& fault) {
    ChosenSource chosen{makeSource(options.source, speed, refusals, fault), nullptr};
    if (!chosen.source) return chosen;
    if (chosen.source->kind() == SourceKind::LiveStats) {
        chosen.decoder = std::make_unique<LiveStatsDecoder>(refusals);
    } else {
        chosen.decoder = std::make_unique<DaktronicsDecoder>(refusals, options.checksums);
    }
    return chosen;
}

}  // namespace zelvor
