#pragma once

#include <QStringList>

#include <optional>

/// A test that kills starts its own program again, as a child which works while it lives. In main() the child
/// knows itself by the words that it was given, says when its work begins, and may report each step.
namespace enfant {

/// The words for the child's work; nothing when this process is the test itself.
std::optional<QStringList> mots(int argc, char **argv);
/// The work begins now.
void commencer();
/// One more step is done.
void signaler();

/// How a child ended.
struct Fin
{
    qint64 microsecondes; ///< from the beginning of its work on
    qint64 pas;           ///< steps that it had reported
    int sortie = 0;       ///< its exit code
};

/// Runs a child to the end of its work, or kills it that long after the beginning.
Fin faire(const QStringList &mots, std::optional<qint64> tuerApresMicrosecondes = {});
/// Runs as many children at the same time, each to the end of its work.
QList<Fin> faireEnsemble(int combien, const QStringList &mots);

} // namespace enfant
