#pragma once

#include <QJsonValue>
#include <optional>

#include "remote/api_routes.h"

// What the interface does, a function a route. What is wrong with a call is answered, never thrown.
namespace zelvor::api {

void getState(const ApiCall& call);
void getQuestion(const ApiCall& call);
void answerQuestion(const ApiCall& call);
void fireCard(const ApiCall& call);
void pressKey(const ApiCall& call);
void clear(const ApiCall& call);
void runScript(const ApiCall& call);
void showSet(const ApiCall& call);
void setVariable(const ApiCall& call);
void setScore(const ApiCall& call);
void clearTags(const ApiCall& call);
void tagPlayer(const ApiCall& call);
void setStarter(const ApiCall& call);
void takeProposal(const ApiCall& call);

// A text, number or truth as a text of one line; nullopt for anything else.
std::optional<QString> scalarText(const QJsonValue& value);

}  // namespace zelvor::api
