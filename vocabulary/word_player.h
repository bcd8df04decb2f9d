#pragma once

#include "core/context.h"

#include <QObject>

namespace vocabulary {

/// A media player without a window: setting its `url` plays the file and returns at once. It sounds beside an
/// effect that still plays.
class WordPlayer : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString url READ url WRITE setUrl)
   public:
    WordPlayer(const core::Context& context, const QString& name, QObject* parent);

    QString url() const { return url_; }
    void setUrl(const QString& url);

   private:
    const core::Context& context_;
    QString url_;
};

}  // namespace vocabulary
