! Loops as a user writes them: intrinsics of Fortran.
subroutine waves(r, x, n)
    include 'orvane/math.inc'
    integer :: n, i
    real(8) :: r(n), x(n)
    do i = 1, n
        r(i) = log_gamma(x(i)) + x(i)**1.7d0 * erf(x(i))
    end do
end subroutine

subroutine wavesf(r, x, n)
    include 'orvane/math.inc'
    integer :: n, i
    real(4) :: r(n), x(n)
    do i = 1, n
        r(i) = exp(x(i)) + gamma(x(i))
    end do
end subroutine

program fortran
    real(8) :: r(64), x(64), e
    real(4) :: rf(64), xf(64)
    do i = 1, 64
        x(i) = i * 0.25d0
        xf(i) = i * 0.25
    end do
    call waves(r, x, 64)
    call wavesf(rf, xf, 64)
    do i = 1, 64
        e = log_gamma(i * 0.25d0) + (i * 0.25d0)**1.7d0 * erf(i * 0.25d0)
        if (abs(r(i) - e) > 1d-14 * abs(e)) stop 1
        e = exp(i * 0.25d0) + gamma(i * 0.25d0)
        if (abs(rf(i) - e) > 3d-7 * e) stop 2
    end do
    print '(a)', 'Fortran'
end program
