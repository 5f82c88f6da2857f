"""The error that a call raises when the library reports a failure."""
import re
from typing import Any, Optional, Union

from . import diagnostics
from ._library import LibraryError
from .constants import Result
from .records import Failure

__all__ = ["LibraryError", "MerovaneError"]


class MerovaneError(Exception):
    """A call that failed: which one, with what result, why, and what to check next.

    code       what the function returned: a Result, or a plain int when it is none
    name       the code's name: "PC_ERR_NO_ANSWER"
    function   the export: "QV_ReadFlash_MT"
    operation  the operation that failed: "ReadFlash"
    advice     what happened and what to check next, in a sentence or two
    failure    everything that the library knows of it: device, system error, times, what came meanwhile
    partial    what the call had stored until then; the function's documentation says with which codes it counts
    """

    def __init__(self, function: str, operation: str, code: int, advice: str, failure: Optional[Failure] = None,
                 partial: Any = None) -> None:
        self.code: Union[Result, int] = as_result(code)
        self.name = diagnostics.result_name(code)
        self.function = function
        self.operation = operation
        self.advice = advice
        self.failure = failure
        self.partial = partial
        device = f" on {failure.device}" if failure and failure.device else ""
        super().__init__(f"{function}{device}: {self.name} ({int(code)}). {advice}".rstrip())

    def __reduce__(self) -> Any:
        return (type(self), (self.function, self.operation, int(self.code), self.advice, self.failure, self.partial))


def as_result(code: int) -> Union[Result, int]:
    try:
        return Result(code)
    except ValueError:
        return code


def bare_name(function: str) -> str:
    """ReadFlash of QV_ReadFlash_MT."""
    return re.sub(r"^QV_|_MT$", "", function)


def failed(function: str, operation: int, code: int, partial: Any) -> MerovaneError:
    """The error of the call that this thread has just made."""
    failure = diagnostics.last_failure()
    if failure and (failure.function != function or failure.result != code):
        failure = None
    if failure:
        operation, advice = failure.operation, failure.advice
    else:
        advice = " ".join(text for text in (diagnostics.result_meaning(code), diagnostics.result_advice(code)) if text)
    # Not every function reports under an operation's id.
    name = diagnostics.operation_name(operation) if operation else bare_name(function)
    return MerovaneError(function, name, code, advice, failure, partial)
