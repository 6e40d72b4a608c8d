"""Vector and matrix routines for statistical analyses: missing values, weights, and the same digits on every machine.

Functions stand here under the names of the field, by subject in the modules of the package; `vecmat.flat` has the library's
own functions, under their names and with their contracts to the bit. NaN, None and pandas' NA are missing, and come back
as NaN; infinities are numbers.

>>> import vecmat as vm
>>> birds = vm.penguins()
>>> round(vm.mean(birds["body_mass_g"]), 2)
4201.75
"""

from vecmat import (components, covariance, data, decompositions, flat, groups, inverses, matrices, missing,
                    qualitative, quantiles, ranks, regression, sampling, scaling, spread, univariate)
from vecmat._results import PrecisionWarning, Result
from vecmat._version import __version__
from vecmat.components import *
from vecmat.covariance import *
from vecmat.data import *
from vecmat.decompositions import *
from vecmat.groups import *
from vecmat.inverses import *
from vecmat.matrices import *
from vecmat.missing import *
from vecmat.qualitative import *
from vecmat.quantiles import *
from vecmat.ranks import *
from vecmat.regression import *
from vecmat.sampling import *
from vecmat.scaling import *
from vecmat.spread import *
from vecmat.univariate import *

__all__ = ["PrecisionWarning", "Result", "flat"]
__all__ += components.__all__
__all__ += covariance.__all__
__all__ += data.__all__
__all__ += decompositions.__all__
__all__ += groups.__all__
__all__ += inverses.__all__
__all__ += matrices.__all__
__all__ += missing.__all__
__all__ += qualitative.__all__
__all__ += quantiles.__all__
__all__ += ranks.__all__
__all__ += regression.__all__
__all__ += sampling.__all__
__all__ += scaling.__all__
__all__ += spread.__all__
__all__ += univariate.__all__
