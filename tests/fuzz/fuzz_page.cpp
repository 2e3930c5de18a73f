// Whatever bytes a page holds, its analysis ends, by values or by its one error.

#include "core/Error.h"
#include "webimport/AnalyserPage.h"

#include <cstdint>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t *octets, std::size_t taille)
{
    AnalysePage::Page page;
    try {
        AnalysePage::AnalyserPage(
            QByteArray(reinterpret_cast<const char *>(octets), static_cast<qsizetype>(taille)), page);
    } catch (const Error &) {
        // The error path: what was read until then stays.
    }
    AnalysePage::NettoyerTitre(page.titre);
    return 0;
}
