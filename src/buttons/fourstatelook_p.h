#pragma once

// The four-state look: widgets keep one colour, icon or border per display state
// in an array of four, indexed by the state (normal 0, hover 1, press 2, disable 3,
// as IconTextButton::DisplayState). Their setters and getters take the four values
// in that order; painting selects the current state's value with stateValue().

namespace vorlin {

constexpr int DisplayStateCount = 4;

inline bool isDisplayState(int state)
{
    return state >= 0 && state < DisplayStateCount;
}

template <typename T>
void setStateValues(T (&values)[DisplayStateCount], const T& normal, const T& hover, const T& press,
                    const T& disable)
{
    values[0] = normal;
    values[1] = hover;
    values[2] = press;
    values[3] = disable;
}

template <typename T>
void getStateValues(const T (&values)[DisplayStateCount], T& normal, T& hover, T& press, T& disable)
{
    normal = values[0];
    hover = values[1];
    press = values[2];
    disable = values[3];
}

// The value of a state, or nullptr outside the four states so that the caller
// keeps its own default.
template <typename T>
T* stateValue(T (&values)[DisplayStateCount], int state)
{
    return isDisplayState(state) ? &values[state] : nullptr;
}

template <typename T>
const T* stateValue(const T (&values)[DisplayStateCount], int state)
{
    return isDisplayState(state) ? &values[state] : nullptr;
}

} // namespace vorlin
