#pragma once

class QWidget;
struct Edition;

/// A picture is to take the place of a field's value: asks first when that is a dedication that somebody wrote.
/// True when the picture may go in. Throws Error.
bool AccordPourLaNote(QWidget *parent, const Edition &edition);
