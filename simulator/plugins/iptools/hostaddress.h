#pragma once

#include <QString>

/**
 * Whether a text can be the address of a host: an IPv4 or IPv6 address (with or without a zone) or a host
 * name. What passes is safe as an argument of a command: it cannot be taken for an option.
 */
bool isHostAddress(const QString& text);
