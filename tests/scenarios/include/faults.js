// What an action is refused with, in words; empty when it is not refused.
function faultOf(action) {
    try {
        action();
    } catch (error) {
        return String(error);
    }
    return "";
}
