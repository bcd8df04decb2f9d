#include "course/score_store.h"

#include "core/stores.h"
#include "platform/error.h"

namespace course {

namespace {

/// Whether a failure is one of the store, which somebody can mend while the box stands.
bool isOfTheStore(platform::ErrorCode code) {
    switch (code) {
        case platform::ErrorCode::DatabaseNotFound:
        case platform::ErrorCode::DatabaseFailure:
        case platform::ErrorCode::UnrecognizedFormat:
        case platform::ErrorCode::TableNotFound: return true;
        default: return false;
    }
}

void repeat(const core::Context& context, const QString& text, const std::function<void()>& work) {
    for (;;) {
        try {
            work();
            return;
        } catch (const platform::RuntimeError& failure) {
            // The next attempt opens the file anew: it may be another one by then.
            context.session.scoreRs.close();
            context.session.scoreDb.close();
            if (!isOfTheStore(failure.code()) || !context.boxes.askAgain(text, failure.sentence()))
                throw;
        }
    }
}

}  // namespace

void saveScores(const core::Context& context, const std::function<void()>& save) {
    repeat(context,
           QStringLiteral("점수를 저장하지 못했습니다. 점수는 아직 남아 있습니다. 다시 저장하시겠습니까?\n\n"
                          "The score could not be saved and is still kept. Save it again?"),
           save);
}

void requireWritableScores(const core::Context& context) {
    repeat(context,
           QStringLiteral("지금은 점수를 저장할 수 없습니다. 다시 시도하시겠습니까?\n\n"
                          "Scores cannot be saved at present. Try again?"),
           [&] { core::openStore(context, core::scorePath(context.session)).requireWritable(); });
}

}  // namespace course
