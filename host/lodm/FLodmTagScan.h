#pragma once

#include <QString>

/**
 * Where the first tag with more attributes than any has begins, most likely one that is to keep a reader busy: the
 * reader of Qt compares each attribute with each other. -1 if there is none. Linear in the length of the text, which
 * needn't be well-formed.
 */
int crowdedTag(const QString& xml);
