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
// 401 and 402: the line names no channel of this server, or lacks a parameter.
QString noSuchChannel(QStringView word);
QString parameterMissing(QStringView word);
// 403, 404 and 501: the command was understood but could not be carried out.
QString illegal(QStringView command);
QString notFound(QStringView command);
QString failed(QStringView command);

}  // namespace zelvor::rehearsal::reply
