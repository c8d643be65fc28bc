// How titles are made of converted clips: what dvdauthor is given, and what it tells.
#pragma once

#include "writing/PlayerDisc.h"

#include <QByteArray>

namespace writing {

/// Titles that follow each other on a disc and have one shape.
struct TitleSet {
    bool wide = false;
    qsizetype first = 1; ///< number on the disc of its first title, from 1
    QList<PlayerTitle> titles; ///< at least one
};

/// `titles` in their order, in as few sets as there are changes of the shape: all pictures of a set are alike, and
/// the numbers of the titles are those of the list.
QList<TitleSet> titleSets(const QList<PlayerTitle> &titles);

/// dvdauthor's description of the disc, in UTF-8: the titles play on one after the other, and the last one stops.
QByteArray authoringXml(const PlayerDisc &disc);

/// dvdauthor's arguments: titles below `folder`, by the description in the file `xml`.
QStringList authoringArguments(const QString &folder, const QString &xml);

/// What a line of dvdauthor tells.
struct AuthoringLine {
    QString doing; ///< what it is at; empty: nothing that a person waits for
    QString failure; ///< what went wrong, for which it ends; empty: nothing
};
AuthoringLine authoringLine(const QString &line);

} // namespace writing
