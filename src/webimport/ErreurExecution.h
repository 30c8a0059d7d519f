#pragma once

#include <stdexcept>

namespace webimport {

/// What a page can hold that ends the program; what() is a French text in UTF-8.
class ErreurExecution : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// A text stands where only a number may stand.
class IncompatibiliteDeType : public ErreurExecution {
public:
    IncompatibiliteDeType() : ErreurExecution("Incompatibilité de type") {}
};

/// A part of a text was asked for whose end stands before its beginning.
class ArgumentIncorrect : public ErreurExecution {
public:
    ArgumentIncorrect() : ErreurExecution("Appel de procédure ou argument incorrect") {}
};

} // namespace webimport
