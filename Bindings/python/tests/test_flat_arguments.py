"""What goes in without a copy, what is refused in which words, threads, and memory."""

import gc
import threading
import time
import tracemalloc

import numpy as np
import pytest
from flat_values import CALLS, same_bits, sized

from vecmat import flat


def test_memory_that_fits_is_worked_on_itself():
    x = np.asfortranarray(np.arange(6.0).reshape(3, 2))
    address = x.ctypes.data
    flat.VB_M_Square(x, 3, 2)
    assert x.ctypes.data == address
    assert x.tolist() == [[0.0, 1.0], [4.0, 9.0], [16.0, 25.0]]
    view = np.arange(10.0)
    flat.VB_V_SetToValue(view[2:5], 3, 7.0)
    assert view.tolist() == [0, 1, 7, 7, 7, 5, 6, 7, 8, 9]


def test_a_read_does_not_copy_what_fits():
    n = 4_000_000
    x = np.ones(n)
    tracemalloc.start()
    flat.VB_V_Mean2(x, n)
    _, peak = tracemalloc.get_traced_memory()
    flat.VB_V_Mean2(list(range(10)), 10)
    tracemalloc.reset_peak()
    flat.VB_V_Mean2(x[::2], n // 2)
    _, copied = tracemalloc.get_traced_memory()
    tracemalloc.stop()
    assert peak < 100_000
    assert copied > 8 * n // 2  # the measure sees a copy where there has to be one


def test_columns_of_a_table_are_views():
    x = np.asfortranarray(np.arange(6.0).reshape(3, 2))
    out = [np.zeros(2), np.zeros(2), np.zeros(2)]
    flat.VB_M_TransposeSPV(x, 3, 2, out)
    assert [column.tolist() for column in out] == [[0.0, 1.0], [2.0, 3.0], [4.0, 5.0]]
    flat.VB_M_SymmetrizeSPV([x[:2, 0], x[:2, 1]], 2, 0)
    assert x[0, 1] == x[1, 0]


@pytest.mark.parametrize("arguments, error, words", [
    ((np.ones(3), 4), ValueError, ["'v'", "expected 4 cells (n)", "shape (3,)"]),
    ((np.ones((2, 2), dtype=complex), 4), TypeError, ["'v'", "complex128"]),
    ((None, 4), TypeError, ["'v'", "None"]),
    ((np.ones(3), "3"), TypeError, ["'n'", "whole number", "str"]),
    ((np.ones(3), 2**33), ValueError, ["'n'", "8589934592"]),
    ((np.ones(3),), TypeError, ["'n'"]),
])
def test_errors_name_the_argument_what_came_and_what_was_expected(arguments, error, words):
    with pytest.raises(error) as raised:
        flat.VB_V_Mean2(*arguments)
    assert "VB_V_Mean2()" in str(raised.value)
    assert all(word in str(raised.value) for word in words), str(raised.value)


def test_results_are_refused_where_the_memory_does_not_fit():
    table = np.arange(6.0).reshape(3, 2)
    with pytest.raises(ValueError, match="column after column"):
        flat.VB_M_Square(table, 3, 2)
    table = np.asfortranarray(table)
    table.setflags(write=False)
    with pytest.raises(ValueError, match="read-only"):
        flat.VB_M_Square(table, 3, 2)
    with pytest.raises(TypeError, match="float32"):
        flat.VB_M_Square(np.ones((3, 2), dtype=np.float32, order="F"), 3, 2)
    with pytest.raises(TypeError, match="list of strings"):
        flat.VB_V_DuplicateStr(["a"], 1, ("b",))


def test_names_and_positions_are_equal():
    x = np.arange(5.0)
    assert flat.VB_V_Mean2(n=5, v=x) == flat.VB_V_Mean2(x, 5) == 2.0
    with pytest.raises(TypeError, match="two values"):
        flat.VB_V_Mean2(x, 5, v=x)
    with pytest.raises(TypeError, match="no argument 'm'"):
        flat.VB_V_Mean2(x, m=5)


def test_true_is_minus_one():
    x = np.array([1.0, 2.0, 3.0])
    mask = np.array([True, False, False])
    assert flat.VB_V_Mean(x, 3, mask, np.ones(3)) == 2.5
    assert flat.VB_V_Var(x, 3, None, np.ones(3), True, True) == flat.VB_V_Var(x, 3, None, np.ones(3), -1, -1) == 1.0


def test_strings_of_all_kinds():
    texts = ["a", "", None, "ä", "𝄞", "x" * 1000]
    out = [None] * 6
    flat.VB_V_DuplicateStr(texts, 6, out)
    assert out == ["a", "", "", "ä", "𝄞", "x" * 1000]
    assert flat.VB_V_Mode(np.array(["b", "a", "a"], dtype=object), 3, 0, np.ones(3)) == "a"
    assert flat.Increase1Col("AZ") == "BA"
    with pytest.raises(ValueError, match="null character"):
        flat.VB_V_DuplicateStr(["a\0b"], 1, [None])


def test_cells_that_address_memory_are_checked():
    x = np.asfortranarray(np.arange(6.0).reshape(3, 2))
    out = np.empty((3, 2), order="F")
    for order in ([1.0, 2.0, 4.0], [0.0, 1.0, 2.0], [np.nan, 1.0, 2.0]):
        with pytest.raises(ValueError, match="'order'"):
            flat.VB_SortApply(x, 3, 2, np.array(order), out)
    flat.VB_SortApply(x, 3, 2, np.array([3.0, 1.0, 2.0]), out)
    assert out[:, 0].tolist() == [4.0, 0.0, 2.0]


def test_other_threads_go_on_while_the_library_works():
    n = 400
    a = np.asfortranarray(np.random.default_rng(1).normal(size=(n, n)))
    a = np.asfortranarray(a + a.T)
    values, vectors = np.empty(n), np.empty((n, n), order="F")
    ticks, done = [], threading.Event()

    def tick():
        while not done.is_set():
            ticks.append(time.perf_counter())
            time.sleep(0.0005)

    clock = threading.Thread(target=tick)
    clock.start()
    time.sleep(0.01)
    start = time.perf_counter()
    for _ in range(5):
        flat.VB_M_Eigen(a, values, vectors, n, -1)
    end = time.perf_counter()
    done.set()
    clock.join()
    assert sum(start < at < end for at in ticks) > 10


def test_threads_give_the_same_bits():
    rng = np.random.default_rng(2)
    tables = [np.asfortranarray(rng.normal(size=(200, 8))) for _ in range(8)]
    labels = [[f"{k}-{i % 7}" for i in range(200)] for k in range(8)]

    def work(k):
        out = np.empty((8, 8), order="F")
        for _ in range(30):
            flat.VB_M_CovCorr(tables[k], 200, 8, out, 0, None, np.ones(200), -1, -1)
            mode = flat.VB_V_Mode(labels[k], 200, 0, np.ones(200))
            series = np.array([k], dtype=np.int32), np.zeros(1, dtype=np.int32)
            drawn = flat.GenerateRandom01(series[0], -1, series[1])
        return out, mode, drawn

    alone = [work(k) for k in range(8)]
    together = [None] * 8

    def run(k):
        together[k] = work(k)

    threads = [threading.Thread(target=run, args=(k,)) for k in range(8)]
    [thread.start() for thread in threads]
    [thread.join() for thread in threads]
    for (a, mode_a, x), (b, mode_b, y) in zip(alone, together):
        assert same_bits(a, b) and mode_a == mode_b and x == y


def resident():
    with open("/proc/self/statm") as file:
        return int(file.read().split()[1]) * 4096


def test_a_thousand_calls_leave_no_memory():
    functions = [(getattr(flat, name), call) for name, call in CALLS.items() if not name.endswith("Memory")]
    functions = [(function, call) for function, call in functions if call.name != "TestAllocMatrix"]

    def once():
        for function, call in functions:
            try:
                function(*sized(call, 6))
            except (ValueError, TypeError):
                pass

    def strings():
        texts = [f"label {k} " * 50 for k in range(200)]
        for _ in range(1000):
            flat.VB_V_DuplicateStr(texts, 200, [None] * 200)
            try:
                flat.VB_V_DuplicateStr([*texts[:-1], 1], 200, [None] * 200)
            except TypeError:
                pass

    once(), strings(), gc.collect()
    before = resident()
    for _ in range(20):
        once()
    strings()
    gc.collect()
    assert resident() - before < 4_000_000


def test_docstrings_have_signatures():
    assert flat.VB_V_Mean2.__text_signature__ == "(v, n)"
    for name in CALLS:
        assert getattr(flat, name).__doc__ is not None, name
    assert "left out (equality)" in flat.VB_V_Mean2.__doc__
