#pragma once

namespace zinfolio {

/// Asks the system for large pages for the coming results. A statement of thirty thousand rows takes some 16
/// MB, and fetching them page by page of 4 KB would take a third of its time. Nothing happens where the
/// system has no such pages.
void GrosseSeitenErbitten();

}  // namespace zinfolio
