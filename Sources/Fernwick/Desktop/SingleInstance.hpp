#pragma once

#include <QByteArray>
#include <QObject>
#include <filesystem>

#include "Posix/FileDescriptor.hpp"

class QSocketNotifier;

/// Keeps a player at one game: of all games over the same settings on this machine, one holds an
/// address that the others find taken. The kernel frees it when the holder ends, however it ends,
/// so nothing stale ever stops a start. The address is a local one; no network is involved.
class SingleInstance : public QObject {
    Q_OBJECT

public:
    enum class Place {
        first,   ///< this process holds the address
        second,  ///< another game holds it, and has been asked to come forward
        unknown  ///< neither: no address is to be had, another user holds it, or it was left
    };

    /// `settings` is the file that the game keeps its settings in; it need not exist. Asking
    /// another game takes as long as that one is busy, at most a second. Needs no application
    /// object.
    explicit SingleInstance(const std::filesystem::path& settings);
    ~SingleInstance() override;

    [[nodiscard]] Place place() const { return place_; }

    /// Answers later starts from now on, and those that have come meanwhile. Needs the
    /// application object.
    void answer();
    /// Answers no more, so that a later start becomes a game of its own.
    void leave();

Q_SIGNALS:
    /// The player has started the game once more. `activationToken` is what the desktop gave
    /// that start so that a window may come to the front; often empty.
    void startedAgain(const QByteArray& activationToken);

private:
    void answerOne();

    Place place_ = Place::unknown;
    FileDescriptor listener_{-1};
    QSocketNotifier* notifier_ = nullptr;
};
