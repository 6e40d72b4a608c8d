"""Vector and matrix routines for statistical analyses: missing values, weights, and the same digits on every machine.

Functions stand here under the names of the field, by subject in the modules of the package; `vecmat.flat` has the library's
own functions, under their names and with their contracts to the bit. NaN, None and pandas' NA are missing, and come back
as NaN; infinities are numbers.

>>> import vecmat as vm
>>> birds = vm.penguins()
>>> round(vm.mean(birds["body_mass_g"]), 2)
4201.75
"""

from vecmat import flat
from vecmat._results import PrecisionWarning, Result
from vecmat.qualitative import *
from vecmat.qualitative import __all__ as _categories
from vecmat.components import *
from vecmat.components import __all__ as _components
from vecmat.covariance import *
from vecmat.covariance import __all__ as _covariance
from vecmat.data import *
from vecmat.data import __all__ as _data
from vecmat.decompositions import *
from vecmat.decompositions import __all__ as _decompositions
from vecmat.missing import *
from vecmat.missing import __all__ as _missing
from vecmat.univariate import *
from vecmat.univariate import __all__ as _moments
from vecmat.quantiles import *
from vecmat.quantiles import __all__ as _quantiles
from vecmat.ranks import *
from vecmat.ranks import __all__ as _ranks
from vecmat.regression import *
from vecmat.regression import __all__ as _regression
from vecmat.sampling import *
from vecmat.sampling import __all__ as _sampling
from vecmat.scaling import *
from vecmat.scaling import __all__ as _scaling

__version__ = "1.0.0"
__all__ = ["PrecisionWarning", "Result", "flat"]
__all__ += _categories + _components + _covariance + _data + _decompositions + _missing + _moments + _quantiles + _ranks
__all__ += _regression + _sampling + _scaling
