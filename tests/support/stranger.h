#pragma once

#include <QFile>
#include <QString>

#include <sys/stat.h>
#include <unistd.h>

#include <cstdlib>

namespace support {

/// For as long as it lives a test that root runs acts as a user without rights; another user's test stays who
/// it is.
class Stranger {
   public:
    Stranger() : wasRoot_(geteuid() == 0 && seteuid(nobody) == 0) {}
    ~Stranger() {
        if (wasRoot_ && seteuid(0) != 0)
            std::abort();
    }
    Stranger(const Stranger&) = delete;
    Stranger& operator=(const Stranger&) = delete;

   private:
    static constexpr uid_t nobody = 65534;
    bool wasRoot_;
};

/// Lets everybody look into a temporary folder, which is closed to others when it is made.
inline void openToOthers(const QString& folder) {
    chmod(QFile::encodeName(folder).constData(), 0755);
}

}  // namespace support
