#pragma once

/// What the QML of a front end asks of the handlers.
class QmlUses
{
};
