#include "core/session.h"

namespace core {

void Session::closeDictionary() {
    allwordRs.close();
    dicwordRs.close();
    dictionaryDb.close();
}

}  // namespace core
