#include "engine/player_session.h"

PlayerSession::~PlayerSession() = default;
