#pragma once

#include <QString>
#include <QStringList>

// The replies of a CasparCG server, each with its CR LF line ends.
namespace zelvor::rehearsal::reply {

// 202: done, nothing to tell.
QString ok(QStringView word);
// 201: done, with one line of data.
QString okWith(QStringView word, QStringView data);
// 200: done, with lines of data and an empty line after them.
QString okLines(QStringView word, const QStringList& lines);
// 400: not a command; the line comes back.
QString unknown(QStringView line);
// 402: REQ alone.
QString requestIdMissing();
// The command was understood but could not be carried out. 402: it lacks a parameter; 403: one is not allowed; 404:
// what it names is not there; 501: one is not of its kind, or there is no room; 503: another client has locked the
// channel.
QString parameterMissing(QStringView command);
QString illegal(QStringView command);
QString notFound(QStringView command);
QString failed(QStringView command);
QString noAccess(QStringView command);

}  // namespace zelvor::rehearsal::reply
