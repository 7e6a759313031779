#pragma once

#include <QJsonArray>
#include <QJsonObject>

#include "rehearsal/journal.h"
#include "rehearsal/stage.h"

// The stage and the journal in the words of the monitor page, as JSON.
namespace zelvor::rehearsal {

// {"number", "source", "background", "paused", "mixer"}; null for a layer that holds nothing. Without the calls made to
// a template: those travel on their own.
QJsonValue layerAsJson(const Stage& stage, LayerAddress at);

// {"function", "argument"}.
// The calls made to the source's template, in order.
QJsonArray callsAsJson(const Source& source);
QJsonObject modeAsJson(const VideoMode& mode);
QJsonObject callAsJson(const TemplateCall& call);

// All channels with their layers, whose templates come with every call made to them: [{"number", "layers"}].
QJsonArray channelsAsJson(const Stage& stage);

// {"time", "kind", "client", "text"}.
QJsonObject lineAsJson(const Journal::Line& line);

}  // namespace zelvor::rehearsal
