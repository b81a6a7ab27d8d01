#pragma once

#include <QByteArray>
#include <filesystem>
#include <optional>

#include "fenster/ausgabe/seitenmaler.h"
#include "kern/bericht/fortschritt.h"

namespace zinfolio {

/// A report as a PDF document: text as text, fonts embedded, title and author set. Nothing where
/// `fortschritt`, which counts pages, has cancelled it.
[[nodiscard]] std::optional<QByteArray> PdfBilden(const Seitenmaler& maler,
                                                  const Fortschritt& fortschritt = {});

/// Writes a report as a PDF file, all or nothing. True: it is complete and lasts; false: `fortschritt` has
/// cancelled it, and the file is as it was. Throws `Dateifehler`.
[[nodiscard]] bool PdfSchreiben(const Seitenmaler& maler, const std::filesystem::path& datei,
                                const Fortschritt& fortschritt = {});

}  // namespace zinfolio
