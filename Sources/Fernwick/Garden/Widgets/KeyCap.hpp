#pragma once

#include <QWidget>

namespace Garden {

/// The name of a key, or of several that are pressed together, on a key.
class KeyCap : public QWidget {
    Q_OBJECT

public:
    explicit KeyCap(const QString& name, QWidget* parent = nullptr);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace Garden
