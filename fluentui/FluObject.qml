import QtQml

/// Holds objects that are not visible, such as hot keys and timers.
QtObject {
    default property list<QtObject> children
}
