#pragma once

#include <QLocalServer>
#include <QLockFile>
#include <QString>

#include <functional>

namespace quillmere {

/// Sees to it that only one program of a person works on a store of settings. The first one that
/// is made for a store holds it; the others ask that one to show itself.
class SingleInstance {
public:
    explicit SingleInstance(const QString& store);

    /// True also where nothing can be told of others, so that the program always starts.
    [[nodiscard]] bool isFirst() const { return isFirst_; }
    /// Runs whenever another start asks this one to show itself.
    void onAsked(std::function<void()> show) { show_ = std::move(show); }
    /// Asks the first one to come to the front.
    void ActivatePreviousInstance() const;

private:
    void listen();

    QString path_; // of the socket; the lock's has an ending more
    QLockFile lock_;
    QLocalServer server_;
    std::function<void()> show_;
    bool isFirst_ = true;
};

} // namespace quillmere
