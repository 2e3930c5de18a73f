#pragma once

class QWidget;

/// What the start does for a collection that is damaged.
namespace Secours {

/// Looks at the collection, thoroughly when the last run did not end by itself. A damaged one is told of, and the
/// newest sound backup offered in its place; the damaged file is kept. Throws Error when that fails.
void Examiner(QWidget *parent, bool finBrutale);

}
