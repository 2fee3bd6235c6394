#pragma once

class QObject;

namespace lanternix {

/// Marks a button, or the action of a menu's entry, as one that destroys something: it is red.
void markDestructive(QObject &control);

/// Whether it is marked; null is not.
bool isDestructive(const QObject *control);

}  // namespace lanternix
