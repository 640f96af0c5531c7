#include "platform/sqlserver/TextScanner.h"

namespace velcro::sql {

TextScanner::Place TextScanner::open(char c, char following) {
    switch (c) {
    case '\'':
        close_ = c;
        return Place::Literal;
    case '"':
        close_ = c;
        return Place::Name;
    case '[':
        close_ = ']';
        return Place::Name;
    case '-':
        return following == '-' ? Place::LineComment : Place::Code;
    case '/':
        pair_ = following == '*';
        depth_ = pair_ ? 1 : 0;
        return pair_ ? Place::BlockComment : Place::Code;
    default:
        return Place::Code;
    }
}

TextScanner::Place TextScanner::next(char c, char following) {
    const Place before = place_;
    if (pair_) {
        pair_ = false;
        if (before == Place::BlockComment && depth_ == 0) {
            place_ = Place::Code;
        }
        return before;
    }
    switch (before) {
    case Place::Code:
        place_ = open(c, following);
        return place_;
    case Place::Literal:
    case Place::Name:
        if (c == close_) {
            pair_ = following == close_;
            place_ = pair_ ? before : Place::Code;
        }
        return before;
    case Place::LineComment:
        if (c == '\n') {
            place_ = Place::Code;
        }
        return before;
    case Place::BlockComment:
        if ((c == '*' && following == '/') || (c == '/' && following == '*')) {
            pair_ = true;
            depth_ += c == '/' ? 1 : -1;
        }
        return before;
    }
    return before;
}

} // namespace velcro::sql
